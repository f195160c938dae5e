#include "script/automation/qvrscr_object.h"

#include "script/script_preparation.h"
#include "services/automation/com_ado.h"

namespace qvr::automation {
namespace {

constexpr DISPID kProgreso = 1, kTerminado = 2;

}  // namespace

HRESULT QVRScrObject::EjecutarComandos(BSTR* ID, LONG* MotorBD, BSTR* TextosComandos, BSTR* CadenaConexion,
                                       BSTR* TextoMostrar, VARIANT_BOOL* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    const Text given_id = text_of(ID), given_text = text_of(TextoMostrar);
    Text id = given_id, progress_text = given_text;
    const bool success =
        core_.EjecutarComandos(id, number_of(MotorBD), text_of(TextosComandos), text_of(CadenaConexion), progress_text);
    give_back(ID, given_id, id);
    give_back(TextoMostrar, given_text, progress_text);
    return success;
  });
}

HRESULT QVRScrObject::Ejecutar1Comando(Connection** Conexion, BSTR* TextoComando, LONG* MotorBD,
                                       VARIANT_BOOL* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    const auto connection = wrap_connection(object_of(Conexion));
    return core_.Ejecutar1Comando(connection.get(), text_of(TextoComando), number_of(MotorBD));
  });
}

HRESULT QVRScrObject::UsuarioSegunMotor(LONG* MotorBD, BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.UsuarioSegunMotor(number_of(MotorBD)); });
}

HRESULT QVRScrObject::CargarDefinicion(BSTR* ID, LONG* MotorBD, BSTR* Ruta, BSTR* NombreDefinicion,
                                       BSTR* NombreBaseOTablespace, BSTR* UsuarioQVRAdm, BSTR* ClaveUsuarioQVRAdm,
                                       BSTR* UsuarioQVRCli, BSTR* ClaveUsuarioQVRCli, VARIANT_BOOL* Encri,
                                       BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    const ScriptAccounts accounts{text_of(NombreBaseOTablespace), text_of(UsuarioQVRAdm), text_of(ClaveUsuarioQVRAdm),
                                  text_of(UsuarioQVRCli), text_of(ClaveUsuarioQVRCli)};
    return core_.CargarDefinicion(text_of(ID), number_of(MotorBD), text_of(Ruta), text_of(NombreDefinicion), accounts,
                                  truth_of(Encri));
  });
}

HRESULT QVRScrObject::CargarActualizacion(BSTR* ID, LONG* MotorBD, BSTR* Ruta, BSTR* Aplicacion, LONG* VersionActual,
                                          BSTR* NombreBaseOTablespace, BSTR* UsuarioQVRAdm, BSTR* ClaveUsuarioQVRAdm,
                                          BSTR* UsuarioQVRCli, BSTR* ClaveUsuarioQVRCli, VARIANT_BOOL* Encri,
                                          BSTR* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] {
    const ScriptAccounts accounts{text_of(NombreBaseOTablespace), text_of(UsuarioQVRAdm), text_of(ClaveUsuarioQVRAdm),
                                  text_of(UsuarioQVRCli), text_of(ClaveUsuarioQVRCli)};
    return core_.CargarActualizacion(text_of(ID), number_of(MotorBD), text_of(Ruta), text_of(Aplicacion),
                                     number_of(VersionActual), accounts, truth_of(Encri));
  });
}

HRESULT QVRScrObject::EnumConnectionPoints(IEnumConnectionPoints** points) noexcept {
  return enumerate_points(point_, points);
}

HRESULT QVRScrObject::FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept {
  return find_point(point_, id, point);
}

void QVRScrObject::Progreso(const Text& Mensaje) noexcept {
  OwnedVariant argument;
  argument->bstrVal = new_bstr(Mensaje);
  argument->vt = VT_BSTR;
  point_.fire(kProgreso, *argument);
}

void QVRScrObject::Terminado(bool Exito) noexcept {
  OwnedVariant argument;
  argument->vt = VT_BOOL;
  argument->boolVal = Exito ? VARIANT_TRUE : VARIANT_FALSE;
  point_.fire(kTerminado, *argument);
}

}  // namespace qvr::automation
