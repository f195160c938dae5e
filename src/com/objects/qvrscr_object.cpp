#include "com/objects/qvrscr_object.h"

#include <optional>

#include "com/clients/com_ado.h"
#include "script/script_preparation.h"

namespace qvr::com {
namespace {

constexpr DISPID kProgreso = 1, kTerminado = 2;

// The converted arguments of a run or a load.
struct RunTexts {
  Text given_id, given_shown, id, shown, commands;
  SecretText connection_string;
};
struct LoadTexts {
  Text id, folder, name;
  ScriptAccounts accounts;
};

// Converts the arguments and calls the core. Terminado is fired also when converting them runs out of memory.
template <class Make, class Call>
auto with_arguments(qvr::QVRScr& core, const char* member, Make&& make, Call&& call) {
  using Arguments = std::invoke_result_t<Make>;
  auto made = or_default(
      qvr::QVRScr::kClass, std::optional<Arguments>(), [&] { return std::optional<Arguments>(make()); },
      SourcePlace::here(__builtin_FILE(), __builtin_LINE(), member));
  if (made) return call(*made);
  core.end_unbegun();
  return decltype(call(*made)){};
}

}  // namespace

HRESULT QVRScrObject::EjecutarComandos(BSTR* ID, LONG* MotorBD, BSTR* TextosComandos, BSTR* CadenaConexion,
                                       BSTR* TextoMostrar, VARIANT_BOOL* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    const auto make = [&] {
      const Text id = text_of(ID), shown = text_of(TextoMostrar);
      return RunTexts{id, shown, id, shown, text_of(TextosComandos), secret_of(CadenaConexion)};
    };
    return with_arguments(core_, "EjecutarComandos", make, [&](RunTexts& texts) {
      const bool success = core_.EjecutarComandos(texts.id, engine_of(MotorBD), texts.commands, texts.connection_string,
                                                  texts.shown);
      give_back(ID, texts.given_id, texts.id);
      give_back(TextoMostrar, texts.given_shown, texts.shown);
      return success;
    });
  });
}

HRESULT QVRScrObject::Ejecutar1Comando(Connection** Conexion, BSTR* TextoComando, LONG* MotorBD,
                                       VARIANT_BOOL* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    const auto connection = wrap_connection(object_of(Conexion));
    return core_.Ejecutar1Comando(connection.get(), text_of(TextoComando), engine_of(MotorBD));
  });
}

HRESULT QVRScrObject::UsuarioSegunMotor(LONG* MotorBD, BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.UsuarioSegunMotor(engine_of(MotorBD)); });
}

HRESULT QVRScrObject::CargarDefinicion(BSTR* ID, LONG* MotorBD, BSTR* Ruta, BSTR* NombreDefinicion,
                                       BSTR* NombreBaseOTablespace, BSTR* UsuarioQVRAdm, BSTR* ClaveUsuarioQVRAdm,
                                       BSTR* UsuarioQVRCli, BSTR* ClaveUsuarioQVRCli, VARIANT_BOOL* Encri,
                                       BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    const auto make = [&] {
      return LoadTexts{text_of(ID),
                       text_of(Ruta),
                       text_of(NombreDefinicion),
                       {text_of(NombreBaseOTablespace), text_of(UsuarioQVRAdm), text_of(ClaveUsuarioQVRAdm),
                        text_of(UsuarioQVRCli), text_of(ClaveUsuarioQVRCli)}};
    };
    return with_arguments(core_, "CargarDefinicion", make, [&](const LoadTexts& texts) {
      return core_.CargarDefinicion(texts.id, engine_of(MotorBD), texts.folder, texts.name, texts.accounts,
                                    truth_of(Encri));
    });
  });
}

HRESULT QVRScrObject::CargarActualizacion(BSTR* ID, LONG* MotorBD, BSTR* Ruta, BSTR* Aplicacion, LONG* VersionActual,
                                          BSTR* NombreBaseOTablespace, BSTR* UsuarioQVRAdm, BSTR* ClaveUsuarioQVRAdm,
                                          BSTR* UsuarioQVRCli, BSTR* ClaveUsuarioQVRCli, VARIANT_BOOL* Encri,
                                          BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    const auto make = [&] {
      return LoadTexts{text_of(ID),
                       text_of(Ruta),
                       text_of(Aplicacion),
                       {text_of(NombreBaseOTablespace), text_of(UsuarioQVRAdm), text_of(ClaveUsuarioQVRAdm),
                        text_of(UsuarioQVRCli), text_of(ClaveUsuarioQVRCli)}};
    };
    return with_arguments(core_, "CargarActualizacion", make, [&](const LoadTexts& texts) {
      return core_.CargarActualizacion(texts.id, engine_of(MotorBD), texts.folder, texts.name, number_of(VersionActual),
                                       texts.accounts, truth_of(Encri));
    });
  });
}

HRESULT QVRScrObject::EnumConnectionPoints(IEnumConnectionPoints** points) noexcept {
  return enumerate_points(point_, points);
}

HRESULT QVRScrObject::FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept {
  return find_point(point_, id, point);
}

void QVRScrObject::Progreso(const Text& Mensaje) noexcept {
  point_.fire(kProgreso, [&](VARIANT& argument) {
    argument.vt = VT_BSTR;
    argument.bstrVal = new_bstr(Mensaje);
  });
}

void QVRScrObject::Terminado(bool Exito) noexcept {
  point_.fire(kTerminado, [=](VARIANT& argument) {
    argument.vt = VT_BOOL;
    argument.boolVal = Exito ? VARIANT_TRUE : VARIANT_FALSE;
  });
}

}  // namespace qvr::com
