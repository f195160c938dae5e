// QVRlib21 for C++: its interfaces slot by slot, and over them classes as a C++ program uses them. Made from the
// library's IDL by tools/imports/write.py.
//
//   qvrlib21::QVRcfp parameters = qvrlib21::create<qvrlib21::QVRcfp>();
//   if (parameters.Crear(L"my application", L"C:\\Data", L"shop")) open(parameters.CadenaADO(L"my application", true));
//
// C++17 and Windows' own headers are enough; link ole32, oleaut32 and uuid. The thread has called CoInitializeEx, and
// objects stay on the thread that made them. Texts are UTF-16. A call that fails throws Failure; a member that answers
// false or an empty text does not.
#pragma once

#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>
#include <oleauto.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace qvrlib21 {

// Database engines.
enum MotoresBD : std::int32_t {
  MotorBDJet = 1,
  MotorBDSQLServer = 2,
  MotorBDOracle = 3,
};

// ADO's directions of a parameter.
enum ParameterDirectionEnum : std::int32_t {
  adParamUnknown = 0,
  adParamInput = 1,
  adParamOutput = 2,
  adParamInputOutput = 3,
  adParamReturnValue = 4,
};

// The interfaces as the library implements them; the classes below are easier to use.
namespace raw {

// Version and location of the library.
struct _Ov : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE Version(long* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE CadenaVersion(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE Path(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE PathCompleto(BSTR* Resultado) = 0;

 protected:
  ~_Ov() = default;
};

// Connection parameters, their protected file and their connection strings.
struct _QVRcfp : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE Asignar(BSTR* ID, MotoresBD* MotorBD, BSTR* Provider, BSTR* DataSource,
                                            BSTR* InitialCatalogOTablespace, BSTR* UsuarioAdm, BSTR* ClaveAdm,
                                            BSTR* UsuarioCli, BSTR* ClaveCli, BSTR* OtrosParametros,
                                            VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE Crear(BSTR* ID, BSTR* R, BSTR* A, VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE Guardar(BSTR* ID, BSTR* R, BSTR* A, VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE CadenaADO(BSTR* ID, VARIANT_BOOL* Adm, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE CadenaADOUsuario(BSTR* Usuario, BSTR* Clave, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE TextoAValor(BSTR* TipoTNFL, BSTR* Texto, VARIANT* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE ValorATexto(BSTR* TipoTNFL, VARIANT* Valor, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Archivo(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_MotorBD(MotoresBD* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Provider(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_DataSource(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_InitialCatalogOTablespace(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_UsuarioAdm(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_UsuarioCli(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_OtrosParametros(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ClaveAdm(BSTR* ID, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ClaveCli(BSTR* ID, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE ComillasSQL(BSTR* Cadena, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE ExpSQL(VARIANT* Valor, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE FechaSQL(VARIANT* Fecha, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE HoraSQL(VARIANT* Fecha, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE FechaHoraSQL(VARIANT* Fecha, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE FechaSQLv(VARIANT* Fecha, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE LogicoSQL(VARIANT_BOOL* Valor, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE AhoraSQL(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlEsTrue(BSTR* Campo, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlEsFalse(BSTR* Campo, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlFalse(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE CadenaParaLikeSQL(BSTR* Cadena, VARIANT_BOOL* ComodinInicial,
                                                      VARIANT_BOOL* ComodinFinal, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlFechaSistema(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlTOP(long* Numero, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlRowNum(long* Numero, VARIANT_BOOL* AnteponerAndSiProcede, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlWhereRelacionTablas(VARIANT* mCampo1Campo2Relacion, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlAlias(BSTR* Alias, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlConcatenar(VARIANT* Cadenas, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlEsNulo(BSTR* CampoComprobar, BSTR* CampoAlternativo, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE sqlCASE(BSTR* Campo, VARIANT* ParejasValoresMasOmision, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE SqlINSERT(BSTR* NombreTabla, VARIANT* MValores, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE SqlUPDATE(BSTR* NombreTabla, BSTR* NombreCampoClave, long* Clave_cd,
                                              VARIANT* MCampos, VARIANT* MValores, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE SqlInsert2(BSTR* NombreTabla, VARIANT* MCampos, VARIANT* MValores,
                                               BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE SqlUpdate2(BSTR* NombreTabla, VARIANT* MCampos, VARIANT* MValores, BSTR* Condicion,
                                               BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE EjecutarProcSQL7(IDispatch** Conexion, BSTR* NombreProc, VARIANT* Parametros,
                                                     VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE AgregarParametroADO(IDispatch** Comando, BSTR* TipoSQLServer, BSTR* Nombre,
                                                        VARIANT* Valor, long* Ancho, ParameterDirectionEnum* Direction,
                                                        VARIANT_BOOL* Resultado) = 0;

 protected:
  ~_QVRcfp() = default;
};

// What every query offers: a statement as created beside what was added to it.
struct _iSQL20 : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE get_CriterioActualCompleto(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_CriterioActualCompleto(BSTR Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE AdoptaComoOriginal(VARIANT_BOOL* AdoptarWhere, VARIANT_BOOL* AdoptarHaving,
                                                       VARIANT_BOOL* AdoptarOrder) = 0;
  virtual HRESULT STDMETHODCALLTYPE AmpliarCondicionWhere(BSTR* Condicion, BSTR* Criterio, VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE AmpliarOrden(short* NuevaColumna, VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE CambiaOrden(BSTR* NuevoOrden) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Creado(VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE Crear(long* MotorBD, BSTR* NombreObjeto, VARIANT_BOOL* UsarDistinct,
                                          VARIANT* ColumnasSELECT, BSTR* TablasFROM, VARIANT* RelacionTablas,
                                          BSTR* CondicionWHEREInicial, short* NumColumnasGROUPBY,
                                          BSTR* CondicionHAVINGInicial, BSTR* TextoORDERBYInicial, long* TOP,
                                          long* Idioma, VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE CrearDesdeTextoDefinicion(BSTR* TextoDefinicion, VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_TextoDefinicion(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CriterioActual(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE InterpretarBusqueda(BSTR* NombreCampoRS, BSTR* TextoBusqueda, BSTR* Criterio,
                                                        VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE ParteOrder(VARIANT_BOOL* SinClausula, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE RestauraOriginal(VARIANT_BOOL* RestaurarWhereYHaving,
                                                     VARIANT_BOOL* RestaurarOrder) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SQL(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SQLOriginal(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SQLOriginalSinOrden(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SQLSinOrden(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE TipoCampo(BSTR* NombreCampoRS, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE NumColumna(BSTR* NombreCampoRS, short* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE NumColumnas(short* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Tag(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Tag(BSTR Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_TOP(long Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_TOP(long* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Idioma(long Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Idioma(long* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_MotorBD(MotoresBD Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_MotorBD(MotoresBD* Resultado) = 0;

 protected:
  ~_iSQL20() = default;
};

// Query of one SELECT statement.
struct _cSQL20 : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE iSQL20_Crear(long* MotorBD, BSTR* NombreObjeto, VARIANT_BOOL* UsarDistinct,
                                                 VARIANT* ColumnasSELECT, BSTR* TablasFROM, VARIANT* RelacionTablas,
                                                 BSTR* CondicionWHEREInicial, short* NumColumnasGROUPBY,
                                                 BSTR* CondicionHAVINGInicial, BSTR* TextoORDERBYInicial, long* TOP,
                                                 long* Idioma, VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Name(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_SQLOriginal(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_SQLOriginalSinOrden(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_SQL(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_SQLSinOrden(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_AmpliarCondicionWhere(BSTR* Condicion, BSTR* Criterio,
                                                                 VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE AmpliarCondicionHaving(BSTR* Condicion, BSTR* Criterio,
                                                           VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE CambiaCondicion(BSTR* NuevaCondicionWhere, BSTR* NuevaCondicionHaving) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_CambiaOrden(BSTR* NuevoOrden) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_RestauraOriginal(VARIANT_BOOL* RestaurarWhereYHaving,
                                                            VARIANT_BOOL* RestaurarOrder) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_AdoptaComoOriginal(VARIANT_BOOL* AdoptarWhere, VARIANT_BOOL* AdoptarHaving,
                                                              VARIANT_BOOL* AdoptarOrder) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_ParteOrder(VARIANT_BOOL* SinClausula, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE ParteWhere(VARIANT_BOOL* SoloCondicion, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE ParteHaving(VARIANT_BOOL* SoloCondicion, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_AmpliarOrden(short* NuevaColumna, VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_InterpretarBusqueda(BSTR* NombreCampoRS, BSTR* TextoBusqueda, BSTR* Criterio,
                                                               VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_TipoCampo(BSTR* NombreCampoRS, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE ExpresionOriginal(BSTR* NombreCampoRS, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_Creado(VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_Tag(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_iSQL20_Tag(BSTR Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_CriterioActual(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_CriterioActualCompleto(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_iSQL20_CriterioActualCompleto(BSTR Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_NumColumna(BSTR* NombreCampoRS, short* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_CrearDesdeTextoDefinicion(BSTR* TextoDefinicion,
                                                                     VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_TextoDefinicion(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_NumColumnas(short* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_iSQL20_TOP(long Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_TOP(long* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_iSQL20_Idioma(long Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_Idioma(long* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_iSQL20_MotorBD(MotoresBD Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_MotorBD(MotoresBD* Resultado) = 0;

 protected:
  ~_cSQL20() = default;
};

// Query of several SELECT statements joined by UNION.
struct _uSQL20 : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE get_Name(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_CriterioActualCompleto(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_iSQL20_CriterioActualCompleto(BSTR Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_AdoptaComoOriginal(VARIANT_BOOL* AdoptarWhere, VARIANT_BOOL* AdoptarHaving,
                                                              VARIANT_BOOL* AdoptarOrder) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_AmpliarCondicionWhere(BSTR* Condicion, BSTR* Criterio,
                                                                 VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_AmpliarOrden(short* NuevaColumna, VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_CambiaOrden(BSTR* NuevoOrden) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_Creado(VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_Crear(long* MotorBD, BSTR* NombreObjeto, VARIANT_BOOL* UsarDistinct,
                                                 VARIANT* ColumnasSELECT, BSTR* TablasFROM, VARIANT* RelacionTablas,
                                                 BSTR* CondicionWHEREInicial, short* NumColumnasGROUPBY,
                                                 BSTR* CondicionHAVINGInicial, BSTR* TextoORDERBYInicial, long* TOP,
                                                 long* Idioma, VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_CrearDesdeTextoDefinicion(BSTR* TextoDefinicion,
                                                                     VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_TextoDefinicion(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_CriterioActual(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_InterpretarBusqueda(BSTR* NombreCampoRS, BSTR* TextoBusqueda, BSTR* Criterio,
                                                               VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_ParteOrder(VARIANT_BOOL* SinClausula, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_RestauraOriginal(VARIANT_BOOL* RestaurarWhereYHaving,
                                                            VARIANT_BOOL* RestaurarOrder) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_SQL(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_SQLOriginal(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_SQLOriginalSinOrden(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_SQLSinOrden(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_TipoCampo(BSTR* NombreCampoRS, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_NumColumna(BSTR* NombreCampoRS, short* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE iSQL20_NumColumnas(short* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_Tag(BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_iSQL20_Tag(BSTR Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_iSQL20_TOP(long Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_TOP(long* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_iSQL20_Idioma(long Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_Idioma(long* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_iSQL20_MotorBD(MotoresBD Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_iSQL20_MotorBD(MotoresBD* Resultado) = 0;

 protected:
  ~_uSQL20() = default;
};

// Script runner.
struct _QVRScr : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE EjecutarComandos(BSTR* ID, long* MotorBD, BSTR* TextosComandos,
                                                     BSTR* CadenaConexion, BSTR* TextoMostrar,
                                                     VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE Ejecutar1Comando(IDispatch** Conexion, BSTR* TextoComando, long* MotorBD,
                                                     VARIANT_BOOL* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE UsuarioSegunMotor(long* MotorBD, BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE CargarDefinicion(BSTR* ID, long* MotorBD, BSTR* Ruta, BSTR* NombreDefinicion,
                                                     BSTR* NombreBaseOTablespace, BSTR* UsuarioQVRAdm,
                                                     BSTR* ClaveUsuarioQVRAdm, BSTR* UsuarioQVRCli,
                                                     BSTR* ClaveUsuarioQVRCli, VARIANT_BOOL* Encri,
                                                     BSTR* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE CargarActualizacion(BSTR* ID, long* MotorBD, BSTR* Ruta, BSTR* Aplicacion,
                                                        long* VersionActual, BSTR* NombreBaseOTablespace,
                                                        BSTR* UsuarioQVRAdm, BSTR* ClaveUsuarioQVRAdm,
                                                        BSTR* UsuarioQVRCli, BSTR* ClaveUsuarioQVRCli,
                                                        VARIANT_BOOL* Encri, BSTR* Resultado) = 0;

 protected:
  ~_QVRScr() = default;
};

// List of typed, named values.
struct _QVRprp : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE Borra() = 0;
  virtual HRESULT STDMETHODCALLTYPE CreaPropiedad(BSTR* Tipo, BSTR* Nombre, VARIANT* Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Item(VARIANT* NombreOIndice, VARIANT* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Item(VARIANT* NombreOIndice, VARIANT Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_NumPropiedades(long* Resultado) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_NombrePropiedad(long* Indice, BSTR* Resultado) = 0;

 protected:
  ~_QVRprp() = default;
};

}  // namespace raw

// The identifiers of the library, of its interfaces and of its classes.
inline constexpr GUID kLibraryId = {0x5607725A, 0xCE38, 0x4F60, {0xBD, 0xB6, 0xA3, 0x50, 0xA7, 0x55, 0x6F, 0xCA}};
inline constexpr WORD kMajorVersion = 1, kMinorVersion = 1;
inline constexpr GUID kScriptEventsId = {0x2C1D5E0F, 0xCC8E, 0x4474, {0xB9, 0x92, 0x43, 0xAB, 0x2C, 0x40, 0x19, 0xFB}};
template <class Interface>
inline constexpr GUID kInterfaceId{};
template <>
inline constexpr GUID kInterfaceId<raw::_Ov> = {
    0xEEA88F6F, 0x600A, 0x44FD, {0x85, 0x69, 0x9C, 0x5A, 0x10, 0x56, 0x01, 0x9F}};
template <>
inline constexpr GUID kInterfaceId<raw::_QVRcfp> = {
    0xBAB7D9FF, 0x33EB, 0x4C08, {0xA9, 0xBF, 0x3D, 0xB8, 0x9A, 0xDC, 0x46, 0x1E}};
template <>
inline constexpr GUID kInterfaceId<raw::_iSQL20> = {
    0xFE0AC381, 0x48B5, 0x4AA1, {0xA2, 0x17, 0x55, 0xDA, 0x85, 0x68, 0x15, 0x9D}};
template <>
inline constexpr GUID kInterfaceId<raw::_cSQL20> = {
    0x86A157CE, 0x9E1D, 0x4DB0, {0xBD, 0x1D, 0x2F, 0x17, 0x8C, 0xBF, 0x9F, 0xFB}};
template <>
inline constexpr GUID kInterfaceId<raw::_uSQL20> = {
    0x54F7E510, 0xC21E, 0x4EDA, {0x92, 0x0D, 0x7E, 0x68, 0xCA, 0x38, 0x84, 0xF6}};
template <>
inline constexpr GUID kInterfaceId<raw::_QVRScr> = {
    0xB61FE2B6, 0xC646, 0x4E64, {0x84, 0xE0, 0x83, 0x97, 0xAE, 0xD8, 0x0B, 0x1E}};
template <>
inline constexpr GUID kInterfaceId<raw::_QVRprp> = {
    0x16D61E78, 0x756E, 0x463D, {0xA7, 0xD4, 0x1F, 0x40, 0xB9, 0xAC, 0x3B, 0xE3}};
inline constexpr GUID kClassId_Ov = {0x88AE9FBC, 0x6D4B, 0x4BA9, {0x80, 0xA2, 0x40, 0x47, 0x61, 0x4C, 0x46, 0xA7}};
inline constexpr GUID kClassId_QVRcfp = {0xB4E0A2A0, 0x2C51, 0x419F, {0xBD, 0x8F, 0x57, 0xDE, 0xC6, 0xDF, 0xF1, 0xE4}};
inline constexpr GUID kClassId_QVRScr = {0x6DE5A4C3, 0x8FE3, 0x4F71, {0x92, 0xFE, 0x61, 0x4A, 0xC0, 0xAC, 0x17, 0x95}};
inline constexpr GUID kClassId_QVRprp = {0xB988C177, 0xC827, 0x40D6, {0xA5, 0x93, 0x5F, 0xCF, 0x12, 0xB2, 0x24, 0x92}};
inline constexpr GUID kClassId_cSQL20 = {0x85011860, 0xD958, 0x4D78, {0x88, 0xD8, 0x24, 0x70, 0x22, 0x9F, 0x6C, 0x32}};
inline constexpr GUID kClassId_uSQL20 = {0x177DE812, 0xA9F3, 0x4C4F, {0x8A, 0x6D, 0x3F, 0x23, 0x4C, 0x43, 0x14, 0xA3}};

// What a failed call tells.
class Failure : public std::runtime_error {
 public:
  explicit Failure(HRESULT code, std::wstring description = {})
      : std::runtime_error("QVRlib21: a call failed"), code_(code), description_(std::move(description)) {}
  HRESULT code() const { return code_; }
  const std::wstring& description() const { return description_; }  // empty where the library gave none

 private:
  HRESULT code_;
  std::wstring description_;
};

namespace detail {

// Of the thread's error object, which is taken away.
inline std::wstring taken_description() {
  IErrorInfo* info = nullptr;
  BSTR text = nullptr;
  if (GetErrorInfo(0, &info) == S_OK) {
    info->GetDescription(&text);
    info->Release();
  }
  std::wstring description(text != nullptr ? text : L"", SysStringLen(text));
  SysFreeString(text);
  return description;
}

// Of a call that has no error object of its own: one that the thread has is another's.
inline void check(HRESULT code) {
  if (FAILED(code)) throw Failure(code);
}

// A text as the library takes and gives it.
class Text {
 public:
  Text() = default;
  explicit Text(std::wstring_view text) {
    if (text.size() > (std::numeric_limits<UINT>::max)() / sizeof(wchar_t)) throw std::bad_alloc();
    text_ = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (text_ == nullptr) throw std::bad_alloc();
  }
  ~Text() { SysFreeString(text_); }
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;

  BSTR get() const { return text_; }
  BSTR* address() { return &text_; }
  std::wstring copy() const { return std::wstring(text_ != nullptr ? text_ : L"", SysStringLen(text_)); }

 private:
  BSTR text_ = nullptr;
};

inline VARIANT_BOOL truth(bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; }

// A counted reference.
template <class Interface>
class Reference {
 public:
  Reference() = default;
  explicit Reference(Interface* adopted) : object_(adopted) {}
  Reference(const Reference& other) : object_(other.object_) {
    if (object_ != nullptr) object_->AddRef();
  }
  Reference(Reference&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Reference& operator=(Reference other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Reference() {
    if (object_ != nullptr) object_->Release();
  }
  Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }

  template <class Other>
  Reference<Other> as(const GUID& id) const {
    void* found = nullptr;
    check(object_->QueryInterface(id, &found));
    return Reference<Other>(static_cast<Other*>(found));
  }

 private:
  Interface* object_ = nullptr;
};

template <class Interface>
bool tells_errors(const Reference<Interface>& object) {
  void* found = nullptr;
  if (FAILED(object->QueryInterface(IID_ISupportErrorInfo, &found))) return false;
  const Reference<ISupportErrorInfo> support(static_cast<ISupportErrorInfo*>(found));
  return support->InterfaceSupportsErrorInfo(kInterfaceId<Interface>) == S_OK;
}

// Of a member's call.
template <class Interface>
void check(const Reference<Interface>& object, HRESULT code) {
  if (FAILED(code)) throw Failure(code, tells_errors(object) ? taken_description() : std::wstring());
}

}  // namespace detail

// A date as automation counts it: days since 30/12/1899, hours behind the point.
struct Date {
  double days = 0;
};

struct Null {};

// Any value: nothing (Empty), Null, a truth, a number, a text, a date, or a list of values.
class Value {
 public:
  Value() noexcept { VariantInit(&value_); }
  Value(Null) noexcept : Value() { value_.vt = VT_NULL; }
  Value(bool truth) noexcept : Value() {
    value_.vt = VT_BOOL;
    value_.boolVal = detail::truth(truth);
  }
  Value(short number) noexcept : Value() {
    value_.vt = VT_I2;
    value_.iVal = number;
  }
  Value(int number) noexcept : Value(static_cast<long>(number)) {}
  Value(long number) noexcept : Value() {
    value_.vt = VT_I4;
    value_.lVal = number;
  }
  Value(double number) noexcept : Value() {
    value_.vt = VT_R8;
    value_.dblVal = number;
  }
  Value(Date date) noexcept : Value() {
    value_.vt = VT_DATE;
    value_.date = date.days;
  }
  Value(std::wstring_view text) : Value() {
    value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (value_.bstrVal == nullptr) throw std::bad_alloc();
    value_.vt = VT_BSTR;
  }
  Value(const std::wstring& text) : Value(std::wstring_view(text)) {}
  Value(const wchar_t* text) : Value(std::wstring_view(text)) {}
  // Automation's 64-bit numbers and pointers are none of these: say which you mean.
  template <class Other, std::enable_if_t<std::is_pointer_v<Other> || std::is_integral_v<Other>, int> = 0>
  Value(Other) = delete;
  Value(const std::vector<Value>& list) : Value() {
    SAFEARRAY* const array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(list.size()));
    if (array == nullptr) throw std::bad_alloc();
    value_.vt = VT_ARRAY | VT_VARIANT;
    value_.parray = array;  // freed by the destructor from here on, as the delegated constructor has ended
    for (LONG i = 0; i < static_cast<LONG>(list.size()); ++i) {
      detail::check(SafeArrayPutElement(array, &i, const_cast<VARIANT*>(&list[static_cast<std::size_t>(i)].value_)));
    }
  }
  Value(std::initializer_list<Value> list) : Value(std::vector<Value>(list)) {}
  Value(const Value& other) : Value() { detail::check(VariantCopy(&value_, const_cast<VARIANT*>(&other.value_))); }
  Value(Value&& other) noexcept : Value() { std::swap(value_, other.value_); }
  Value& operator=(Value other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~Value() { VariantClear(&value_); }

  // An optional argument that is not given, which is not the same as nothing.
  static Value missing() noexcept {
    Value value;
    value.value_.vt = VT_ERROR;
    value.value_.scode = DISP_E_PARAMNOTFOUND;
    return value;
  }

  bool is_empty() const { return value_.vt == VT_EMPTY; }
  bool is_null() const { return value_.vt == VT_NULL; }
  bool is_list() const { return (value_.vt & VT_ARRAY) != 0; }
  // Converted by the user's locale where the value is of another type; they throw where it cannot be.
  std::wstring text() const {
    const Value converted = as(VT_BSTR);
    return std::wstring(converted.value_.bstrVal != nullptr ? converted.value_.bstrVal : L"",
                        SysStringLen(converted.value_.bstrVal));
  }
  double number() const { return as(VT_R8).value_.dblVal; }
  bool truth() const { return as(VT_BOOL).value_.boolVal != VARIANT_FALSE; }
  Date date() const { return Date{as(VT_DATE).value_.date}; }
  // The elements of a list of values with one dimension.
  std::vector<Value> list() const {
    if (value_.vt != (VT_ARRAY | VT_VARIANT) || SafeArrayGetDim(value_.parray) != 1) throw Failure(DISP_E_TYPEMISMATCH);
    LONG first = 0, last = -1;
    detail::check(SafeArrayGetLBound(value_.parray, 1, &first));
    detail::check(SafeArrayGetUBound(value_.parray, 1, &last));
    std::vector<Value> elements(static_cast<std::size_t>(last - first + 1));
    for (LONG i = first; i <= last; ++i) {
      detail::check(SafeArrayGetElement(value_.parray, &i, &elements[static_cast<std::size_t>(i - first)].value_));
    }
    return elements;
  }

  VARIANT* address() { return &value_; }
  const VARIANT& get() const { return value_; }

 private:
  Value as(VARTYPE type) const {
    Value converted;
    detail::check(VariantChangeTypeEx(&converted.value_, const_cast<VARIANT*>(&value_), LOCALE_USER_DEFAULT, 0, type));
    return converted;
  }

  VARIANT value_;
};

// What every query offers.
class iSQL20 {
 public:
  using Interface = raw::_iSQL20;
  explicit iSQL20(detail::Reference<Interface> object) : object_(std::move(object)) {}

  const detail::Reference<Interface>& reference() const { return object_; }

  // What was added to the query, as one text to be kept.
  std::wstring CriterioActualCompleto() const {
    detail::Text answer;
    detail::check(object_, object_->get_CriterioActualCompleto(answer.address()));
    return answer.copy();
  }
  // Puts back what was added from such a text.
  void CriterioActualCompleto(std::wstring_view Valor) const {
    detail::Text Valor_(Valor);
    detail::check(object_, object_->put_CriterioActualCompleto(Valor_.get()));
  }
  // Makes what was added part of the statement as created.
  void AdoptaComoOriginal(bool AdoptarWhere, bool AdoptarHaving, bool AdoptarOrder) const {
    VARIANT_BOOL AdoptarWhere_ = detail::truth(AdoptarWhere);
    VARIANT_BOOL AdoptarHaving_ = detail::truth(AdoptarHaving);
    VARIANT_BOOL AdoptarOrder_ = detail::truth(AdoptarOrder);
    detail::check(object_, object_->AdoptaComoOriginal(&AdoptarWhere_, &AdoptarHaving_, &AdoptarOrder_));
  }
  // Narrows the query; False for an empty condition and for one that is there already.
  bool AmpliarCondicionWhere(std::wstring_view Condicion, std::wstring_view Criterio = {}) const {
    detail::Text Condicion_(Condicion);
    detail::Text Criterio_(Criterio);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->AmpliarCondicionWhere(Condicion_.address(), Criterio_.address(), &answer));
    return answer != VARIANT_FALSE;
  }
  // Sorts by this column first, once more in reverse; always False.
  bool AmpliarOrden(short NuevaColumna) const {
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->AmpliarOrden(&NuevaColumna, &answer));
    return answer != VARIANT_FALSE;
  }
  // Replaces the query's order.
  void CambiaOrden(std::wstring_view NuevoOrden) const {
    detail::Text NuevoOrden_(NuevoOrden);
    detail::check(object_, object_->CambiaOrden(NuevoOrden_.address()));
  }
  // Whether there is a query.
  bool Creado() const {
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->get_Creado(&answer));
    return answer != VARIANT_FALSE;
  }
  // Creates the query from columns, tables, relations and initial clauses.
  bool Crear(long MotorBD, std::wstring_view NombreObjeto, bool UsarDistinct, const Value& ColumnasSELECT,
             std::wstring_view TablasFROM, const Value& RelacionTablas = Value::missing(),
             std::wstring_view CondicionWHEREInicial = {}, short NumColumnasGROUPBY = 0,
             std::wstring_view CondicionHAVINGInicial = {}, std::wstring_view TextoORDERBYInicial = {}, long TOP = 0,
             long Idioma = 0) const {
    detail::Text NombreObjeto_(NombreObjeto);
    VARIANT_BOOL UsarDistinct_ = detail::truth(UsarDistinct);
    Value ColumnasSELECT_(ColumnasSELECT);
    detail::Text TablasFROM_(TablasFROM);
    Value RelacionTablas_(RelacionTablas);
    detail::Text CondicionWHEREInicial_(CondicionWHEREInicial);
    detail::Text CondicionHAVINGInicial_(CondicionHAVINGInicial);
    detail::Text TextoORDERBYInicial_(TextoORDERBYInicial);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_,
                  object_->Crear(&MotorBD, NombreObjeto_.address(), &UsarDistinct_, ColumnasSELECT_.address(),
                                 TablasFROM_.address(), RelacionTablas_.address(), CondicionWHEREInicial_.address(),
                                 &NumColumnasGROUPBY, CondicionHAVINGInicial_.address(), TextoORDERBYInicial_.address(),
                                 &TOP, &Idioma, &answer));
    return answer != VARIANT_FALSE;
  }
  // Creates the query from its definition text.
  bool CrearDesdeTextoDefinicion(std::wstring_view TextoDefinicion) const {
    detail::Text TextoDefinicion_(TextoDefinicion);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->CrearDesdeTextoDefinicion(TextoDefinicion_.address(), &answer));
    return answer != VARIANT_FALSE;
  }
  // The whole query as one text to be kept.
  std::wstring TextoDefinicion() const {
    detail::Text answer;
    detail::check(object_, object_->get_TextoDefinicion(answer.address()));
    return answer.copy();
  }
  // What was added, in words for the user.
  std::wstring CriterioActual() const {
    detail::Text answer;
    detail::check(object_, object_->get_CriterioActual(answer.address()));
    return answer.copy();
  }
  // Narrows the query by what a user typed for a column; False for what is no search.
  bool InterpretarBusqueda(std::wstring_view NombreCampoRS, std::wstring_view TextoBusqueda,
                           std::wstring_view Criterio = {}) const {
    detail::Text NombreCampoRS_(NombreCampoRS);
    detail::Text TextoBusqueda_(TextoBusqueda);
    detail::Text Criterio_(Criterio);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->InterpretarBusqueda(NombreCampoRS_.address(), TextoBusqueda_.address(),
                                                        Criterio_.address(), &answer));
    return answer != VARIANT_FALSE;
  }
  // The current ORDER BY clause, or its list alone.
  std::wstring ParteOrder(bool SinClausula = false) const {
    VARIANT_BOOL SinClausula_ = detail::truth(SinClausula);
    detail::Text answer;
    detail::check(object_, object_->ParteOrder(&SinClausula_, answer.address()));
    return answer.copy();
  }
  // Takes away what was added.
  void RestauraOriginal(bool RestaurarWhereYHaving, bool RestaurarOrder) const {
    VARIANT_BOOL RestaurarWhereYHaving_ = detail::truth(RestaurarWhereYHaving);
    VARIANT_BOOL RestaurarOrder_ = detail::truth(RestaurarOrder);
    detail::check(object_, object_->RestauraOriginal(&RestaurarWhereYHaving_, &RestaurarOrder_));
  }
  // The statement as it is now.
  std::wstring SQL() const {
    detail::Text answer;
    detail::check(object_, object_->get_SQL(answer.address()));
    return answer.copy();
  }
  // The statement as it was created.
  std::wstring SQLOriginal() const {
    detail::Text answer;
    detail::check(object_, object_->get_SQLOriginal(answer.address()));
    return answer.copy();
  }
  // The statement as it was created, without its order.
  std::wstring SQLOriginalSinOrden() const {
    detail::Text answer;
    detail::check(object_, object_->get_SQLOriginalSinOrden(answer.address()));
    return answer.copy();
  }
  // The statement as it is now, without its order.
  std::wstring SQLSinOrden() const {
    detail::Text answer;
    detail::check(object_, object_->get_SQLSinOrden(answer.address()));
    return answer.copy();
  }
  // Type letter of the column with this name in a record set.
  std::wstring TipoCampo(std::wstring_view NombreCampoRS) const {
    detail::Text NombreCampoRS_(NombreCampoRS);
    detail::Text answer;
    detail::check(object_, object_->TipoCampo(NombreCampoRS_.address(), answer.address()));
    return answer.copy();
  }
  // Position of the column with this name in a record set; 0 for none.
  short NumColumna(std::wstring_view NombreCampoRS) const {
    detail::Text NombreCampoRS_(NombreCampoRS);
    short answer = 0;
    detail::check(object_, object_->NumColumna(NombreCampoRS_.address(), &answer));
    return answer;
  }
  // Number of columns.
  short NumColumnas() const {
    short answer = 0;
    detail::check(object_, object_->NumColumnas(&answer));
    return answer;
  }
  // Text of the caller's own.
  std::wstring Tag() const {
    detail::Text answer;
    detail::check(object_, object_->get_Tag(answer.address()));
    return answer.copy();
  }
  // Text of the caller's own.
  void Tag(std::wstring_view Valor) const {
    detail::Text Valor_(Valor);
    detail::check(object_, object_->put_Tag(Valor_.get()));
  }
  // Limit of rows; 0 for none.
  void TOP(long Valor) const { detail::check(object_, object_->put_TOP(Valor)); }
  // Limit of rows; 0 for none.
  long TOP() const {
    long answer = 0;
    detail::check(object_, object_->get_TOP(&answer));
    return answer;
  }
  // Language number; writing also sets the library's language.
  void Idioma(long Valor) const { detail::check(object_, object_->put_Idioma(Valor)); }
  // Language number.
  long Idioma() const {
    long answer = 0;
    detail::check(object_, object_->get_Idioma(&answer));
    return answer;
  }
  // Database engine; texts that are there do not change.
  void MotorBD(MotoresBD Valor) const { detail::check(object_, object_->put_MotorBD(Valor)); }
  // Database engine; 0 when not set.
  MotoresBD MotorBD() const {
    MotoresBD answer{};
    detail::check(object_, object_->get_MotorBD(&answer));
    return answer;
  }

 private:
  detail::Reference<Interface> object_;
};

// Version and location of the library.
class Ov {
 public:
  using Interface = raw::_Ov;
  static constexpr GUID kClassId = kClassId_Ov;
  explicit Ov(detail::Reference<Interface> object) : object_(std::move(object)) {}

  const detail::Reference<Interface>& reference() const { return object_; }

  // Version as one number: 2.10.24 is 21024.
  long Version() const {
    long answer = 0;
    detail::check(object_, object_->Version(&answer));
    return answer;
  }
  // Version as text: 2.10.24.
  std::wstring CadenaVersion() const {
    detail::Text answer;
    detail::check(object_, object_->CadenaVersion(answer.address()));
    return answer.copy();
  }
  // Folder of the library file, without a separator at its end.
  std::wstring Path() const {
    detail::Text answer;
    detail::check(object_, object_->Path(answer.address()));
    return answer.copy();
  }
  // Path of the library file, ending in .dll.
  std::wstring PathCompleto() const {
    detail::Text answer;
    detail::check(object_, object_->PathCompleto(answer.address()));
    return answer.copy();
  }

 private:
  detail::Reference<Interface> object_;
};

// Connection parameters and SQL of the configured engine.
class QVRcfp {
 public:
  using Interface = raw::_QVRcfp;
  static constexpr GUID kClassId = kClassId_QVRcfp;
  explicit QVRcfp(detail::Reference<Interface> object) : object_(std::move(object)) {}

  const detail::Reference<Interface>& reference() const { return object_; }

  // Takes over connection parameters; True when done.
  bool Asignar(std::wstring_view ID, MotoresBD MotorBD, std::wstring_view Provider, std::wstring_view DataSource,
               std::wstring_view InitialCatalogOTablespace, std::wstring_view UsuarioAdm, std::wstring_view ClaveAdm,
               std::wstring_view UsuarioCli, std::wstring_view ClaveCli, std::wstring_view OtrosParametros) const {
    detail::Text ID_(ID);
    detail::Text Provider_(Provider);
    detail::Text DataSource_(DataSource);
    detail::Text InitialCatalogOTablespace_(InitialCatalogOTablespace);
    detail::Text UsuarioAdm_(UsuarioAdm);
    detail::Text ClaveAdm_(ClaveAdm);
    detail::Text UsuarioCli_(UsuarioCli);
    detail::Text ClaveCli_(ClaveCli);
    detail::Text OtrosParametros_(OtrosParametros);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_,
                  object_->Asignar(ID_.address(), &MotorBD, Provider_.address(), DataSource_.address(),
                                   InitialCatalogOTablespace_.address(), UsuarioAdm_.address(), ClaveAdm_.address(),
                                   UsuarioCli_.address(), ClaveCli_.address(), OtrosParametros_.address(), &answer));
    return answer != VARIANT_FALSE;
  }
  // Loads file A.cfp of folder R; False and empty when it is missing, damaged or of another identification.
  bool Crear(std::wstring_view ID, std::wstring_view R, std::wstring_view A) const {
    detail::Text ID_(ID);
    detail::Text R_(R);
    detail::Text A_(A);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->Crear(ID_.address(), R_.address(), A_.address(), &answer));
    return answer != VARIANT_FALSE;
  }
  // Writes the parameters to file A.cfp of folder R; False when that fails.
  bool Guardar(std::wstring_view ID, std::wstring_view R, std::wstring_view A) const {
    detail::Text ID_(ID);
    detail::Text R_(R);
    detail::Text A_(A);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->Guardar(ID_.address(), R_.address(), A_.address(), &answer));
    return answer != VARIANT_FALSE;
  }
  // OLE DB connection string with the administrator's or the client's account.
  std::wstring CadenaADO(std::wstring_view ID, bool Adm) const {
    detail::Text ID_(ID);
    VARIANT_BOOL Adm_ = detail::truth(Adm);
    detail::Text answer;
    detail::check(object_, object_->CadenaADO(ID_.address(), &Adm_, answer.address()));
    return answer.copy();
  }
  // OLE DB connection string with this account.
  std::wstring CadenaADOUsuario(std::wstring_view Usuario, std::wstring_view Clave) const {
    detail::Text Usuario_(Usuario);
    detail::Text Clave_(Clave);
    detail::Text answer;
    detail::check(object_, object_->CadenaADOUsuario(Usuario_.address(), Clave_.address(), answer.address()));
    return answer.copy();
  }
  // Value of a typed text; type T text, N number, F date, L logical.
  Value TextoAValor(std::wstring_view TipoTNFL, std::wstring_view Texto) const {
    detail::Text TipoTNFL_(TipoTNFL);
    detail::Text Texto_(Texto);
    Value answer;
    detail::check(object_, object_->TextoAValor(TipoTNFL_.address(), Texto_.address(), answer.address()));
    return answer;
  }
  // Typed text of a value; type T text, N number, F date, L logical.
  std::wstring ValorATexto(std::wstring_view TipoTNFL, const Value& Valor) const {
    detail::Text TipoTNFL_(TipoTNFL);
    Value Valor_(Valor);
    detail::Text answer;
    detail::check(object_, object_->ValorATexto(TipoTNFL_.address(), Valor_.address(), answer.address()));
    return answer.copy();
  }
  // Name of the file that the parameters came from or were saved to.
  std::wstring Archivo() const {
    detail::Text answer;
    detail::check(object_, object_->get_Archivo(answer.address()));
    return answer.copy();
  }
  // Database engine; 0 when not set.
  MotoresBD MotorBD() const {
    MotoresBD answer{};
    detail::check(object_, object_->get_MotorBD(&answer));
    return answer;
  }
  // OLE DB provider.
  std::wstring Provider() const {
    detail::Text answer;
    detail::check(object_, object_->get_Provider(answer.address()));
    return answer.copy();
  }
  // Database file, server or service name.
  std::wstring DataSource() const {
    detail::Text answer;
    detail::check(object_, object_->get_DataSource(answer.address()));
    return answer.copy();
  }
  // SQL Server catalogue or Oracle tablespace.
  std::wstring InitialCatalogOTablespace() const {
    detail::Text answer;
    detail::check(object_, object_->get_InitialCatalogOTablespace(answer.address()));
    return answer.copy();
  }
  // Administrator user.
  std::wstring UsuarioAdm() const {
    detail::Text answer;
    detail::check(object_, object_->get_UsuarioAdm(answer.address()));
    return answer.copy();
  }
  // Client user.
  std::wstring UsuarioCli() const {
    detail::Text answer;
    detail::check(object_, object_->get_UsuarioCli(answer.address()));
    return answer.copy();
  }
  // Further connection options, appended as they stand.
  std::wstring OtrosParametros() const {
    detail::Text answer;
    detail::check(object_, object_->get_OtrosParametros(answer.address()));
    return answer.copy();
  }
  // Administrator password.
  std::wstring ClaveAdm(std::wstring_view ID) const {
    detail::Text ID_(ID);
    detail::Text answer;
    detail::check(object_, object_->get_ClaveAdm(ID_.address(), answer.address()));
    return answer.copy();
  }
  // Client password.
  std::wstring ClaveCli(std::wstring_view ID) const {
    detail::Text ID_(ID);
    detail::Text answer;
    detail::check(object_, object_->get_ClaveCli(ID_.address(), answer.address()));
    return answer.copy();
  }
  // Text in quotes, its own quotes doubled.
  std::wstring ComillasSQL(std::wstring_view Cadena) const {
    detail::Text Cadena_(Cadena);
    detail::Text answer;
    detail::check(object_, object_->ComillasSQL(Cadena_.address(), answer.address()));
    return answer.copy();
  }
  // Literal of a value, chosen by its type.
  std::wstring ExpSQL(const Value& Valor) const {
    Value Valor_(Valor);
    detail::Text answer;
    detail::check(object_, object_->ExpSQL(Valor_.address(), answer.address()));
    return answer.copy();
  }
  // Date literal; Null for what is no date.
  std::wstring FechaSQL(const Value& Fecha) const {
    Value Fecha_(Fecha);
    detail::Text answer;
    detail::check(object_, object_->FechaSQL(Fecha_.address(), answer.address()));
    return answer.copy();
  }
  // Time literal; Null for what is no date.
  std::wstring HoraSQL(const Value& Fecha) const {
    Value Fecha_(Fecha);
    detail::Text answer;
    detail::check(object_, object_->HoraSQL(Fecha_.address(), answer.address()));
    return answer.copy();
  }
  // Date and time literal, or the clock for Ahora; Null for what is no date.
  std::wstring FechaHoraSQL(const Value& Fecha) const {
    Value Fecha_(Fecha);
    detail::Text answer;
    detail::check(object_, object_->FechaHoraSQL(Fecha_.address(), answer.address()));
    return answer.copy();
  }
  // Date, time or date and time literal, the narrowest that holds the value.
  std::wstring FechaSQLv(const Value& Fecha) const {
    Value Fecha_(Fecha);
    detail::Text answer;
    detail::check(object_, object_->FechaSQLv(Fecha_.address(), answer.address()));
    return answer.copy();
  }
  // Truth literal.
  std::wstring LogicoSQL(bool Valor) const {
    VARIANT_BOOL Valor_ = detail::truth(Valor);
    detail::Text answer;
    detail::check(object_, object_->LogicoSQL(&Valor_, answer.address()));
    return answer.copy();
  }
  // The server's clock as an expression.
  std::wstring AhoraSQL() const {
    detail::Text answer;
    detail::check(object_, object_->AhoraSQL(answer.address()));
    return answer.copy();
  }
  // Condition that the field is true.
  std::wstring sqlEsTrue(std::wstring_view Campo) const {
    detail::Text Campo_(Campo);
    detail::Text answer;
    detail::check(object_, object_->sqlEsTrue(Campo_.address(), answer.address()));
    return answer.copy();
  }
  // Condition that the field is false.
  std::wstring sqlEsFalse(std::wstring_view Campo) const {
    detail::Text Campo_(Campo);
    detail::Text answer;
    detail::check(object_, object_->sqlEsFalse(Campo_.address(), answer.address()));
    return answer.copy();
  }
  // The false constant.
  std::wstring sqlFalse() const {
    detail::Text answer;
    detail::check(object_, object_->sqlFalse(answer.address()));
    return answer.copy();
  }
  // Quoted LIKE pattern of a text with * and ?.
  std::wstring CadenaParaLikeSQL(std::wstring_view Cadena, bool ComodinInicial = false,
                                 bool ComodinFinal = false) const {
    detail::Text Cadena_(Cadena);
    VARIANT_BOOL ComodinInicial_ = detail::truth(ComodinInicial);
    VARIANT_BOOL ComodinFinal_ = detail::truth(ComodinFinal);
    detail::Text answer;
    detail::check(object_,
                  object_->CadenaParaLikeSQL(Cadena_.address(), &ComodinInicial_, &ComodinFinal_, answer.address()));
    return answer.copy();
  }
  // Statement that reads the server's clock into a column FechaSistema.
  std::wstring sqlFechaSistema() const {
    detail::Text answer;
    detail::check(object_, object_->sqlFechaSistema(answer.address()));
    return answer.copy();
  }
  // Limit of rows before the select list; empty for Oracle.
  std::wstring sqlTOP(long Numero) const {
    detail::Text answer;
    detail::check(object_, object_->sqlTOP(&Numero, answer.address()));
    return answer.copy();
  }
  // Limit of rows as a condition; empty but for Oracle.
  std::wstring sqlRowNum(long Numero, bool AnteponerAndSiProcede) const {
    VARIANT_BOOL AnteponerAndSiProcede_ = detail::truth(AnteponerAndSiProcede);
    detail::Text answer;
    detail::check(object_, object_->sqlRowNum(&Numero, &AnteponerAndSiProcede_, answer.address()));
    return answer.copy();
  }
  // Join condition for triples of column, column and relation I, L or R.
  std::wstring sqlWhereRelacionTablas(const Value& mCampo1Campo2Relacion) const {
    Value mCampo1Campo2Relacion_(mCampo1Campo2Relacion);
    detail::Text answer;
    detail::check(object_, object_->sqlWhereRelacionTablas(mCampo1Campo2Relacion_.address(), answer.address()));
    return answer.copy();
  }
  // Name of a column in the result.
  std::wstring sqlAlias(std::wstring_view Alias) const {
    detail::Text Alias_(Alias);
    detail::Text answer;
    detail::check(object_, object_->sqlAlias(Alias_.address(), answer.address()));
    return answer.copy();
  }
  // Concatenation of expressions.
  std::wstring sqlConcatenar(const Value& Cadenas) const {
    Value Cadenas_(Cadenas);
    detail::Text answer;
    detail::check(object_, object_->sqlConcatenar(Cadenas_.address(), answer.address()));
    return answer.copy();
  }
  // The field, or the alternative where it is null.
  std::wstring sqlEsNulo(std::wstring_view CampoComprobar, std::wstring_view CampoAlternativo) const {
    detail::Text CampoComprobar_(CampoComprobar);
    detail::Text CampoAlternativo_(CampoAlternativo);
    detail::Text answer;
    detail::check(object_,
                  object_->sqlEsNulo(CampoComprobar_.address(), CampoAlternativo_.address(), answer.address()));
    return answer.copy();
  }
  // Field mapped by pairs of value and result, an odd last one being the default.
  std::wstring sqlCASE(std::wstring_view Campo, const Value& ParejasValoresMasOmision) const {
    detail::Text Campo_(Campo);
    Value ParejasValoresMasOmision_(ParejasValoresMasOmision);
    detail::Text answer;
    detail::check(object_, object_->sqlCASE(Campo_.address(), ParejasValoresMasOmision_.address(), answer.address()));
    return answer.copy();
  }
  // INSERT statement without a list of columns.
  std::wstring SqlINSERT(std::wstring_view NombreTabla, const Value& MValores) const {
    detail::Text NombreTabla_(NombreTabla);
    Value MValores_(MValores);
    detail::Text answer;
    detail::check(object_, object_->SqlINSERT(NombreTabla_.address(), MValores_.address(), answer.address()));
    return answer.copy();
  }
  // UPDATE statement for the row with this whole-number key.
  std::wstring SqlUPDATE(std::wstring_view NombreTabla, std::wstring_view NombreCampoClave, long Clave_cd,
                         const Value& MCampos, const Value& MValores) const {
    detail::Text NombreTabla_(NombreTabla);
    detail::Text NombreCampoClave_(NombreCampoClave);
    Value MCampos_(MCampos);
    Value MValores_(MValores);
    detail::Text answer;
    detail::check(object_, object_->SqlUPDATE(NombreTabla_.address(), NombreCampoClave_.address(), &Clave_cd,
                                              MCampos_.address(), MValores_.address(), answer.address()));
    return answer.copy();
  }
  // INSERT statement with a list of columns.
  std::wstring SqlInsert2(std::wstring_view NombreTabla, const Value& MCampos, const Value& MValores) const {
    detail::Text NombreTabla_(NombreTabla);
    Value MCampos_(MCampos);
    Value MValores_(MValores);
    detail::Text answer;
    detail::check(object_, object_->SqlInsert2(NombreTabla_.address(), MCampos_.address(), MValores_.address(),
                                               answer.address()));
    return answer.copy();
  }
  // UPDATE statement with a condition of any form.
  std::wstring SqlUpdate2(std::wstring_view NombreTabla, const Value& MCampos, const Value& MValores,
                          std::wstring_view Condicion) const {
    detail::Text NombreTabla_(NombreTabla);
    Value MCampos_(MCampos);
    Value MValores_(MValores);
    detail::Text Condicion_(Condicion);
    detail::Text answer;
    detail::check(object_, object_->SqlUpdate2(NombreTabla_.address(), MCampos_.address(), MValores_.address(),
                                               Condicion_.address(), answer.address()));
    return answer.copy();
  }
  // Calls a stored procedure of SQL Server; output values come back in the array.
  bool EjecutarProcSQL7(IDispatch* Conexion, std::wstring_view NombreProc, Value& Parametros) const {
    detail::Text NombreProc_(NombreProc);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->EjecutarProcSQL7(&Conexion, NombreProc_.address(), Parametros.address(), &answer));
    return answer != VARIANT_FALSE;
  }
  // Appends a parameter whose type fits the engine to a command.
  bool AgregarParametroADO(IDispatch* Comando, std::wstring_view TipoSQLServer, std::wstring_view Nombre,
                           const Value& Valor = Value::missing(), long Ancho = 0,
                           ParameterDirectionEnum Direction = adParamInput) const {
    detail::Text TipoSQLServer_(TipoSQLServer);
    detail::Text Nombre_(Nombre);
    Value Valor_(Valor);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->AgregarParametroADO(&Comando, TipoSQLServer_.address(), Nombre_.address(),
                                                        Valor_.address(), &Ancho, &Direction, &answer));
    return answer != VARIANT_FALSE;
  }

 private:
  detail::Reference<Interface> object_;
};

// Script runner.
class QVRScr {
 public:
  using Interface = raw::_QVRScr;
  static constexpr GUID kClassId = kClassId_QVRScr;
  explicit QVRScr(detail::Reference<Interface> object) : object_(std::move(object)) {}

  const detail::Reference<Interface>& reference() const { return object_; }

  // Runs commands separated by GO lines in one transaction; True when the list ran to its end.
  bool EjecutarComandos(std::wstring_view ID, long MotorBD, std::wstring_view TextosComandos,
                        std::wstring_view CadenaConexion, std::wstring* TextoMostrar = nullptr) const {
    detail::Text ID_(ID);
    detail::Text TextosComandos_(TextosComandos);
    detail::Text CadenaConexion_(CadenaConexion);
    detail::Text TextoMostrar_(TextoMostrar != nullptr ? *TextoMostrar : L"");
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->EjecutarComandos(ID_.address(), &MotorBD, TextosComandos_.address(),
                                                     CadenaConexion_.address(), TextoMostrar_.address(), &answer));
    if (TextoMostrar != nullptr) *TextoMostrar = TextoMostrar_.copy();
    return answer != VARIANT_FALSE;
  }
  // Runs one command on an open connection; False after the failure was reported.
  bool Ejecutar1Comando(IDispatch* Conexion, std::wstring_view TextoComando, long MotorBD) const {
    detail::Text TextoComando_(TextoComando);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(object_, object_->Ejecutar1Comando(&Conexion, TextoComando_.address(), &MotorBD, &answer));
    return answer != VARIANT_FALSE;
  }
  // The engine's built-in administrator account.
  std::wstring UsuarioSegunMotor(long MotorBD) const {
    detail::Text answer;
    detail::check(object_, object_->UsuarioSegunMotor(&MotorBD, answer.address()));
    return answer.copy();
  }
  // Text of the scripts that create a database, ready to be run; empty when one cannot be read.
  std::wstring CargarDefinicion(std::wstring_view ID, long MotorBD, std::wstring_view Ruta,
                                std::wstring_view NombreDefinicion, std::wstring_view NombreBaseOTablespace,
                                std::wstring_view UsuarioQVRAdm, std::wstring_view ClaveUsuarioQVRAdm,
                                std::wstring_view UsuarioQVRCli, std::wstring_view ClaveUsuarioQVRCli,
                                bool Encri) const {
    detail::Text ID_(ID);
    detail::Text Ruta_(Ruta);
    detail::Text NombreDefinicion_(NombreDefinicion);
    detail::Text NombreBaseOTablespace_(NombreBaseOTablespace);
    detail::Text UsuarioQVRAdm_(UsuarioQVRAdm);
    detail::Text ClaveUsuarioQVRAdm_(ClaveUsuarioQVRAdm);
    detail::Text UsuarioQVRCli_(UsuarioQVRCli);
    detail::Text ClaveUsuarioQVRCli_(ClaveUsuarioQVRCli);
    VARIANT_BOOL Encri_ = detail::truth(Encri);
    detail::Text answer;
    detail::check(object_,
                  object_->CargarDefinicion(ID_.address(), &MotorBD, Ruta_.address(), NombreDefinicion_.address(),
                                            NombreBaseOTablespace_.address(), UsuarioQVRAdm_.address(),
                                            ClaveUsuarioQVRAdm_.address(), UsuarioQVRCli_.address(),
                                            ClaveUsuarioQVRCli_.address(), &Encri_, answer.address()));
    return answer.copy();
  }
  // Text of the scripts that update a database from a version on; empty when there is none.
  std::wstring CargarActualizacion(std::wstring_view ID, long MotorBD, std::wstring_view Ruta,
                                   std::wstring_view Aplicacion, long VersionActual,
                                   std::wstring_view NombreBaseOTablespace, std::wstring_view UsuarioQVRAdm,
                                   std::wstring_view ClaveUsuarioQVRAdm, std::wstring_view UsuarioQVRCli,
                                   std::wstring_view ClaveUsuarioQVRCli, bool Encri) const {
    detail::Text ID_(ID);
    detail::Text Ruta_(Ruta);
    detail::Text Aplicacion_(Aplicacion);
    detail::Text NombreBaseOTablespace_(NombreBaseOTablespace);
    detail::Text UsuarioQVRAdm_(UsuarioQVRAdm);
    detail::Text ClaveUsuarioQVRAdm_(ClaveUsuarioQVRAdm);
    detail::Text UsuarioQVRCli_(UsuarioQVRCli);
    detail::Text ClaveUsuarioQVRCli_(ClaveUsuarioQVRCli);
    VARIANT_BOOL Encri_ = detail::truth(Encri);
    detail::Text answer;
    detail::check(object_, object_->CargarActualizacion(ID_.address(), &MotorBD, Ruta_.address(), Aplicacion_.address(),
                                                        &VersionActual, NombreBaseOTablespace_.address(),
                                                        UsuarioQVRAdm_.address(), ClaveUsuarioQVRAdm_.address(),
                                                        UsuarioQVRCli_.address(), ClaveUsuarioQVRCli_.address(),
                                                        &Encri_, answer.address()));
    return answer.copy();
  }

 private:
  detail::Reference<Interface> object_;
};

// List of typed, named values.
class QVRprp {
 public:
  using Interface = raw::_QVRprp;
  static constexpr GUID kClassId = kClassId_QVRprp;
  explicit QVRprp(detail::Reference<Interface> object) : object_(std::move(object)) {}

  const detail::Reference<Interface>& reference() const { return object_; }

  // Removes every property.
  void Borra() const { detail::check(object_, object_->Borra()); }
  // Adds a property; type T text, N number, F date, L logical.
  void CreaPropiedad(std::wstring_view Tipo, std::wstring_view Nombre, const Value& Valor) const {
    detail::Text Tipo_(Tipo);
    detail::Text Nombre_(Nombre);
    Value Valor_(Valor);
    detail::check(object_, object_->CreaPropiedad(Tipo_.address(), Nombre_.address(), Valor_.address()));
  }
  // Value of a property by its name or its position from 0; Empty for none.
  Value Item(const Value& NombreOIndice) const {
    Value NombreOIndice_(NombreOIndice);
    Value answer;
    detail::check(object_, object_->get_Item(NombreOIndice_.address(), answer.address()));
    return answer;
  }
  // Value of a property by its name or its position from 0; Empty for none.
  void Item(const Value& NombreOIndice, const Value& Valor) const {
    Value NombreOIndice_(NombreOIndice);
    detail::check(object_, object_->put_Item(NombreOIndice_.address(), Valor.get()));
  }
  // Number of properties.
  long NumPropiedades() const {
    long answer = 0;
    detail::check(object_, object_->get_NumPropiedades(&answer));
    return answer;
  }
  // Name of the property at a position from 0; empty for none.
  std::wstring NombrePropiedad(long Indice) const {
    detail::Text answer;
    detail::check(object_, object_->get_NombrePropiedad(&Indice, answer.address()));
    return answer.copy();
  }

 private:
  detail::Reference<Interface> object_;
};

// Query of one SELECT statement.
class cSQL20 : public iSQL20 {
 public:
  using Interface = raw::_cSQL20;
  static constexpr GUID kClassId = kClassId_cSQL20;
  explicit cSQL20(detail::Reference<Interface> object)
      : iSQL20(object.as<iSQL20::Interface>(kInterfaceId<iSQL20::Interface>)), own_(std::move(object)) {}

  const detail::Reference<Interface>& reference() const { return own_; }

  // Name of the class.
  std::wstring Name() const {
    detail::Text answer;
    detail::check(own_, own_->get_Name(answer.address()));
    return answer.copy();
  }
  // Narrows the groups; False for an empty condition and for one that is there already.
  bool AmpliarCondicionHaving(std::wstring_view Condicion, std::wstring_view Criterio = {}) const {
    detail::Text Condicion_(Condicion);
    detail::Text Criterio_(Criterio);
    VARIANT_BOOL answer = VARIANT_FALSE;
    detail::check(own_, own_->AmpliarCondicionHaving(Condicion_.address(), Criterio_.address(), &answer));
    return answer != VARIANT_FALSE;
  }
  // Replaces the query's conditions; what was added goes.
  void CambiaCondicion(std::wstring_view NuevaCondicionWhere, std::wstring_view NuevaCondicionHaving) const {
    detail::Text NuevaCondicionWhere_(NuevaCondicionWhere);
    detail::Text NuevaCondicionHaving_(NuevaCondicionHaving);
    detail::check(own_, own_->CambiaCondicion(NuevaCondicionWhere_.address(), NuevaCondicionHaving_.address()));
  }
  // The current WHERE clause, or its condition alone.
  std::wstring ParteWhere(bool SoloCondicion = false) const {
    VARIANT_BOOL SoloCondicion_ = detail::truth(SoloCondicion);
    detail::Text answer;
    detail::check(own_, own_->ParteWhere(&SoloCondicion_, answer.address()));
    return answer.copy();
  }
  // The current HAVING clause, or its condition alone.
  std::wstring ParteHaving(bool SoloCondicion = false) const {
    VARIANT_BOOL SoloCondicion_ = detail::truth(SoloCondicion);
    detail::Text answer;
    detail::check(own_, own_->ParteHaving(&SoloCondicion_, answer.address()));
    return answer.copy();
  }
  // Expression of the column with this name in a record set.
  std::wstring ExpresionOriginal(std::wstring_view NombreCampoRS) const {
    detail::Text NombreCampoRS_(NombreCampoRS);
    detail::Text answer;
    detail::check(own_, own_->ExpresionOriginal(NombreCampoRS_.address(), answer.address()));
    return answer.copy();
  }

 private:
  detail::Reference<Interface> own_;
};

// Query of several SELECT statements joined by UNION.
class uSQL20 : public iSQL20 {
 public:
  using Interface = raw::_uSQL20;
  static constexpr GUID kClassId = kClassId_uSQL20;
  explicit uSQL20(detail::Reference<Interface> object)
      : iSQL20(object.as<iSQL20::Interface>(kInterfaceId<iSQL20::Interface>)), own_(std::move(object)) {}

  const detail::Reference<Interface>& reference() const { return own_; }

  // Name of the class.
  std::wstring Name() const {
    detail::Text answer;
    detail::check(own_, own_->get_Name(answer.address()));
    return answer.copy();
  }

 private:
  detail::Reference<Interface> own_;
};

// Makes an object of a class that is registered, or that the program's manifest names.
template <class Class>
Class create() {
  void* made = nullptr;
  detail::check(
      CoCreateInstance(Class::kClassId, nullptr, CLSCTX_INPROC_SERVER, kInterfaceId<typename Class::Interface>, &made));
  return Class(detail::Reference<typename Class::Interface>(static_cast<typename Class::Interface*>(made)));
}

// A library file whose classes are created without registration and manifest. It stays loaded.
class LibraryFile {
 public:
  explicit LibraryFile(const std::wstring& path) : module_(LoadLibraryW(path.c_str())) {
    if (module_ == nullptr) throw Failure(HRESULT_FROM_WIN32(GetLastError()));
  }

  template <class Class>
  Class create() const {
    using Interface = typename Class::Interface;
    using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const auto get = reinterpret_cast<GetClassObject>(
        reinterpret_cast<void*>(GetProcAddress(module_, "DllGetClassObject")));
    if (get == nullptr) throw Failure(HRESULT_FROM_WIN32(GetLastError()));
    void* factory = nullptr;
    void* made = nullptr;
    detail::check(get(Class::kClassId, IID_IClassFactory, &factory));
    const detail::Reference<IClassFactory> maker(static_cast<IClassFactory*>(factory));
    detail::check(maker->CreateInstance(nullptr, kInterfaceId<Interface>, &made));
    return Class(detail::Reference<Interface>(static_cast<Interface*>(made)));
  }

 private:
  HMODULE module_;
};

// What the events of a script runner call; what they throw ends there.
struct ScriptEvents {
  std::function<void(const std::wstring& message)> Progreso;
  std::function<void(bool success)> Terminado;
};

namespace detail {

class Sink final : public IDispatch {
 public:
  explicit Sink(ScriptEvents events) : events_(std::move(events)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) override {
    if (found == nullptr) return E_POINTER;
    const bool ours = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch) || IsEqualIID(id, kScriptEventsId);
    *found = ours ? this : nullptr;
    if (!ours) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --count_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    if (given == nullptr || given->cArgs != 1) return DISP_E_BADPARAMCOUNT;
    // The arguments come by reference.
    VARIANT argument;
    VariantInit(&argument);
    if (FAILED(VariantCopyInd(&argument, given->rgvarg))) return DISP_E_TYPEMISMATCH;
    const HRESULT called = call(id, argument);
    VariantClear(&argument);
    return called;
  }

 private:
  HRESULT call(DISPID id, const VARIANT& argument) noexcept {
    try {
      if (id == 1 && argument.vt == VT_BSTR && events_.Progreso) {
        events_.Progreso(
            std::wstring(argument.bstrVal != nullptr ? argument.bstrVal : L"", SysStringLen(argument.bstrVal)));
      }
      if (id == 2 && argument.vt == VT_BOOL && events_.Terminado) {
        events_.Terminado(argument.boolVal != VARIANT_FALSE);
      }
      return S_OK;
    } catch (...) {
      return E_FAIL;
    }
  }

  ULONG count_ = 1;  // one thread only: an apartment's
  ScriptEvents events_;
};

}  // namespace detail

// Hears the events of a script runner as long as it lives.
class ScriptEventsConnection {
 public:
  ScriptEventsConnection(const QVRScr& runner, ScriptEvents events) {
    const auto container = runner.reference().as<IConnectionPointContainer>(IID_IConnectionPointContainer);
    IConnectionPoint* found = nullptr;
    detail::check(container->FindConnectionPoint(kScriptEventsId, &found));
    point_ = detail::Reference<IConnectionPoint>(found);
    const detail::Reference<detail::Sink> sink(new detail::Sink(std::move(events)));
    detail::check(point_->Advise(sink.get(), &cookie_));
  }
  ~ScriptEventsConnection() { point_->Unadvise(cookie_); }
  ScriptEventsConnection(const ScriptEventsConnection&) = delete;
  ScriptEventsConnection& operator=(const ScriptEventsConnection&) = delete;

 private:
  detail::Reference<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

}  // namespace qvrlib21
