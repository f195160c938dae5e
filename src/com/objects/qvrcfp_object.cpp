#include "com/objects/qvrcfp_object.h"

namespace qvr::com {

HRESULT QVRcfpObject::Asignar(BSTR* ID, MotoresBD* MotorBD, BSTR* Provider, BSTR* DataSource,
                              BSTR* InitialCatalogOTablespace, BSTR* UsuarioAdm, BSTR* ClaveAdm, BSTR* UsuarioCli,
                              BSTR* ClaveCli, BSTR* OtrosParametros, VARIANT_BOOL* Resultado) noexcept {
  return answer(Resultado, [&] {
    const PassingParameters taken{{.MotorBD = engine_of(MotorBD),
                                   .Archivo = {},
                                   .Provider = text_of(Provider),
                                   .DataSource = text_of(DataSource),
                                   .InitialCatalogOTablespace = text_of(InitialCatalogOTablespace),
                                   .UsuarioAdm = text_of(UsuarioAdm),
                                   .ClaveAdm = text_of(ClaveAdm),
                                   .UsuarioCli = text_of(UsuarioCli),
                                   .ClaveCli = text_of(ClaveCli),
                                   .OtrosParametros = text_of(OtrosParametros)}};
    return core_.Asignar(secret_of(ID), taken.parameters);
  });
}
HRESULT QVRcfpObject::Crear(BSTR* ID, BSTR* R, BSTR* A, VARIANT_BOOL* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.Crear(secret_of(ID), text_of(R), text_of(A)); });
}
HRESULT QVRcfpObject::Guardar(BSTR* ID, BSTR* R, BSTR* A, VARIANT_BOOL* Resultado) noexcept {
  return answer_while_kept(Resultado, [&] { return core_.Guardar(secret_of(ID), text_of(R), text_of(A)); });
}
HRESULT QVRcfpObject::CadenaADO(BSTR* ID, VARIANT_BOOL* Adm, BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return SecretText(core_.CadenaADO(secret_of(ID), truth_of(Adm))); });
}
HRESULT QVRcfpObject::CadenaADOUsuario(BSTR* Usuario, BSTR* Clave, BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return SecretText(core_.CadenaADOUsuario(text_of(Usuario), secret_of(Clave))); });
}
HRESULT QVRcfpObject::TextoAValor(BSTR* TipoTNFL, BSTR* Texto, VARIANT* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.TextoAValor(text_of(TipoTNFL), text_of(Texto)); });
}
HRESULT QVRcfpObject::ValorATexto(BSTR* TipoTNFL, VARIANT* Valor, BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.ValorATexto(text_of(TipoTNFL), value_of(Valor)); });
}
HRESULT QVRcfpObject::get_Archivo(BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.Archivo(); });
}
HRESULT QVRcfpObject::get_MotorBD(MotoresBD* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.MotorBD(); });
}
HRESULT QVRcfpObject::get_Provider(BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.Provider(); });
}
HRESULT QVRcfpObject::get_DataSource(BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.DataSource(); });
}
HRESULT QVRcfpObject::get_InitialCatalogOTablespace(BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.InitialCatalogOTablespace(); });
}
HRESULT QVRcfpObject::get_UsuarioAdm(BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.UsuarioAdm(); });
}
HRESULT QVRcfpObject::get_UsuarioCli(BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.UsuarioCli(); });
}
HRESULT QVRcfpObject::get_OtrosParametros(BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return core_.OtrosParametros(); });
}
HRESULT QVRcfpObject::get_ClaveAdm(BSTR* ID, BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return SecretText(Text(core_.ClaveAdm(secret_of(ID)))); });
}
HRESULT QVRcfpObject::get_ClaveCli(BSTR* ID, BSTR* Resultado) noexcept {
  return answer(Resultado, [&] { return SecretText(Text(core_.ClaveCli(secret_of(ID)))); });
}

}  // namespace qvr::com
