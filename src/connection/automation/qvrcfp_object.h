#pragma once

#include "QVRlib21.h"
#include "connection/qvrcfp.h"
#include "frame/automation/object.h"

namespace qvr::automation {

class QVRcfpObject final : public Object<::QVRcfp, Dual<_QVRcfp>> {
 public:
  STDMETHODIMP Asignar(BSTR* ID, MotoresBD* MotorBD, BSTR* Provider, BSTR* DataSource, BSTR* InitialCatalogOTablespace,
                       BSTR* UsuarioAdm, BSTR* ClaveAdm, BSTR* UsuarioCli, BSTR* ClaveCli, BSTR* OtrosParametros,
                       VARIANT_BOOL* Resultado) noexcept override;
  STDMETHODIMP Crear(BSTR* ID, BSTR* R, BSTR* A, VARIANT_BOOL* Resultado) noexcept override;
  STDMETHODIMP Guardar(BSTR* ID, BSTR* R, BSTR* A, VARIANT_BOOL* Resultado) noexcept override;
  STDMETHODIMP CadenaADO(BSTR* ID, VARIANT_BOOL* Adm, BSTR* Resultado) noexcept override;
  STDMETHODIMP CadenaADOUsuario(BSTR* Usuario, BSTR* Clave, BSTR* Resultado) noexcept override;
  STDMETHODIMP TextoAValor(BSTR* TipoTNFL, BSTR* Texto, VARIANT* Resultado) noexcept override;
  STDMETHODIMP ValorATexto(BSTR* TipoTNFL, VARIANT* Valor, BSTR* Resultado) noexcept override;
  STDMETHODIMP get_Archivo(BSTR* Resultado) noexcept override;
  STDMETHODIMP get_MotorBD(MotoresBD* Resultado) noexcept override;
  STDMETHODIMP get_Provider(BSTR* Resultado) noexcept override;
  STDMETHODIMP get_DataSource(BSTR* Resultado) noexcept override;
  STDMETHODIMP get_InitialCatalogOTablespace(BSTR* Resultado) noexcept override;
  STDMETHODIMP get_UsuarioAdm(BSTR* Resultado) noexcept override;
  STDMETHODIMP get_UsuarioCli(BSTR* Resultado) noexcept override;
  STDMETHODIMP get_OtrosParametros(BSTR* Resultado) noexcept override;
  STDMETHODIMP get_ClaveAdm(BSTR* ID, BSTR* Resultado) noexcept override;
  STDMETHODIMP get_ClaveCli(BSTR* ID, BSTR* Resultado) noexcept override;

 private:
  qvr::QVRcfp core_;
};

}  // namespace qvr::automation
