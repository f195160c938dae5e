#pragma once

#include "QVRlib21.h"
#include "com/object.h"
#include "connection/qvrcfp.h"

namespace qvr::com {

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

  STDMETHODIMP ComillasSQL(BSTR* Cadena, BSTR* Resultado) noexcept override;
  STDMETHODIMP ExpSQL(VARIANT* Valor, BSTR* Resultado) noexcept override;
  STDMETHODIMP FechaSQL(VARIANT* Fecha, BSTR* Resultado) noexcept override;
  STDMETHODIMP HoraSQL(VARIANT* Fecha, BSTR* Resultado) noexcept override;
  STDMETHODIMP FechaHoraSQL(VARIANT* Fecha, BSTR* Resultado) noexcept override;
  STDMETHODIMP FechaSQLv(VARIANT* Fecha, BSTR* Resultado) noexcept override;
  STDMETHODIMP LogicoSQL(VARIANT_BOOL* Valor, BSTR* Resultado) noexcept override;
  STDMETHODIMP AhoraSQL(BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlEsTrue(BSTR* Campo, BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlEsFalse(BSTR* Campo, BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlFalse(BSTR* Resultado) noexcept override;
  STDMETHODIMP CadenaParaLikeSQL(BSTR* Cadena, VARIANT_BOOL* ComodinInicial, VARIANT_BOOL* ComodinFinal,
                                 BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlFechaSistema(BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlTOP(LONG* Numero, BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlRowNum(LONG* Numero, VARIANT_BOOL* AnteponerAndSiProcede, BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlWhereRelacionTablas(VARIANT* mCampo1Campo2Relacion, BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlAlias(BSTR* Alias, BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlConcatenar(VARIANT* Cadenas, BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlEsNulo(BSTR* CampoComprobar, BSTR* CampoAlternativo, BSTR* Resultado) noexcept override;
  STDMETHODIMP sqlCASE(BSTR* Campo, VARIANT* ParejasValoresMasOmision, BSTR* Resultado) noexcept override;
  STDMETHODIMP SqlINSERT(BSTR* NombreTabla, VARIANT* MValores, BSTR* Resultado) noexcept override;
  STDMETHODIMP SqlUPDATE(BSTR* NombreTabla, BSTR* NombreCampoClave, LONG* Clave_cd, VARIANT* MCampos, VARIANT* MValores,
                         BSTR* Resultado) noexcept override;
  STDMETHODIMP SqlInsert2(BSTR* NombreTabla, VARIANT* MCampos, VARIANT* MValores, BSTR* Resultado) noexcept override;
  STDMETHODIMP SqlUpdate2(BSTR* NombreTabla, VARIANT* MCampos, VARIANT* MValores, BSTR* Condicion,
                          BSTR* Resultado) noexcept override;
  STDMETHODIMP EjecutarProcSQL7(Connection** Conexion, BSTR* NombreProc, VARIANT* Parametros,
                                VARIANT_BOOL* Resultado) noexcept override;
  STDMETHODIMP AgregarParametroADO(Command** Comando, BSTR* TipoSQLServer, BSTR* Nombre, VARIANT* Valor, LONG* Ancho,
                                   ParameterDirectionEnum* Direction, VARIANT_BOOL* Resultado) noexcept override;

 private:
  qvr::QVRcfp core_;
};

}  // namespace qvr::com
