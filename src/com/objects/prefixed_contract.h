// The members of iSQL20 on a class's default interface, where their names begin with "iSQL20_".
#pragma once

#include "com/objects/contract.h"

namespace qvr::com {

// Forwards each member to the object's iSQL20.
template <class I>
class PrefixedContract : public Dual<I> {
 public:
  STDMETHODIMP get_iSQL20_CriterioActualCompleto(BSTR* Resultado) noexcept override {
    return contract().get_CriterioActualCompleto(Resultado);
  }
  STDMETHODIMP put_iSQL20_CriterioActualCompleto(BSTR Valor) noexcept override {
    return contract().put_CriterioActualCompleto(Valor);
  }
  STDMETHODIMP iSQL20_AdoptaComoOriginal(VARIANT_BOOL* AdoptarWhere, VARIANT_BOOL* AdoptarHaving,
                                         VARIANT_BOOL* AdoptarOrder) noexcept override {
    return contract().AdoptaComoOriginal(AdoptarWhere, AdoptarHaving, AdoptarOrder);
  }
  STDMETHODIMP iSQL20_AmpliarCondicionWhere(BSTR* Condicion, BSTR* Criterio,
                                            VARIANT_BOOL* Resultado) noexcept override {
    return contract().AmpliarCondicionWhere(Condicion, Criterio, Resultado);
  }
  STDMETHODIMP iSQL20_AmpliarOrden(SHORT* NuevaColumna, VARIANT_BOOL* Resultado) noexcept override {
    return contract().AmpliarOrden(NuevaColumna, Resultado);
  }
  STDMETHODIMP iSQL20_CambiaOrden(BSTR* NuevoOrden) noexcept override { return contract().CambiaOrden(NuevoOrden); }
  STDMETHODIMP get_iSQL20_Creado(VARIANT_BOOL* Resultado) noexcept override { return contract().get_Creado(Resultado); }
  STDMETHODIMP iSQL20_Crear(LONG* MotorBD, BSTR* NombreObjeto, VARIANT_BOOL* UsarDistinct, VARIANT* ColumnasSELECT,
                            BSTR* TablasFROM, VARIANT* RelacionTablas, BSTR* CondicionWHEREInicial,
                            SHORT* NumColumnasGROUPBY, BSTR* CondicionHAVINGInicial, BSTR* TextoORDERBYInicial,
                            LONG* TOP, LONG* Idioma, VARIANT_BOOL* Resultado) noexcept override {
    return contract().Crear(MotorBD, NombreObjeto, UsarDistinct, ColumnasSELECT, TablasFROM, RelacionTablas,
                            CondicionWHEREInicial, NumColumnasGROUPBY, CondicionHAVINGInicial, TextoORDERBYInicial, TOP,
                            Idioma, Resultado);
  }
  STDMETHODIMP iSQL20_CrearDesdeTextoDefinicion(BSTR* TextoDefinicion, VARIANT_BOOL* Resultado) noexcept override {
    return contract().CrearDesdeTextoDefinicion(TextoDefinicion, Resultado);
  }
  STDMETHODIMP get_iSQL20_TextoDefinicion(BSTR* Resultado) noexcept override {
    return contract().get_TextoDefinicion(Resultado);
  }
  STDMETHODIMP get_iSQL20_CriterioActual(BSTR* Resultado) noexcept override {
    return contract().get_CriterioActual(Resultado);
  }
  STDMETHODIMP iSQL20_InterpretarBusqueda(BSTR* NombreCampoRS, BSTR* TextoBusqueda, BSTR* Criterio,
                                          VARIANT_BOOL* Resultado) noexcept override {
    return contract().InterpretarBusqueda(NombreCampoRS, TextoBusqueda, Criterio, Resultado);
  }
  STDMETHODIMP iSQL20_ParteOrder(VARIANT_BOOL* SinClausula, BSTR* Resultado) noexcept override {
    return contract().ParteOrder(SinClausula, Resultado);
  }
  STDMETHODIMP iSQL20_RestauraOriginal(VARIANT_BOOL* RestaurarWhereYHaving,
                                       VARIANT_BOOL* RestaurarOrder) noexcept override {
    return contract().RestauraOriginal(RestaurarWhereYHaving, RestaurarOrder);
  }
  STDMETHODIMP get_iSQL20_SQL(BSTR* Resultado) noexcept override { return contract().get_SQL(Resultado); }
  STDMETHODIMP get_iSQL20_SQLOriginal(BSTR* Resultado) noexcept override {
    return contract().get_SQLOriginal(Resultado);
  }
  STDMETHODIMP get_iSQL20_SQLOriginalSinOrden(BSTR* Resultado) noexcept override {
    return contract().get_SQLOriginalSinOrden(Resultado);
  }
  STDMETHODIMP get_iSQL20_SQLSinOrden(BSTR* Resultado) noexcept override {
    return contract().get_SQLSinOrden(Resultado);
  }
  STDMETHODIMP iSQL20_TipoCampo(BSTR* NombreCampoRS, BSTR* Resultado) noexcept override {
    return contract().TipoCampo(NombreCampoRS, Resultado);
  }
  STDMETHODIMP iSQL20_NumColumna(BSTR* NombreCampoRS, SHORT* Resultado) noexcept override {
    return contract().NumColumna(NombreCampoRS, Resultado);
  }
  STDMETHODIMP iSQL20_NumColumnas(SHORT* Resultado) noexcept override { return contract().NumColumnas(Resultado); }
  STDMETHODIMP get_iSQL20_Tag(BSTR* Resultado) noexcept override { return contract().get_Tag(Resultado); }
  STDMETHODIMP put_iSQL20_Tag(BSTR Valor) noexcept override { return contract().put_Tag(Valor); }
  STDMETHODIMP put_iSQL20_TOP(LONG Valor) noexcept override { return contract().put_TOP(Valor); }
  STDMETHODIMP get_iSQL20_TOP(LONG* Resultado) noexcept override { return contract().get_TOP(Resultado); }
  STDMETHODIMP put_iSQL20_Idioma(LONG Valor) noexcept override { return contract().put_Idioma(Valor); }
  STDMETHODIMP get_iSQL20_Idioma(LONG* Resultado) noexcept override { return contract().get_Idioma(Resultado); }
  STDMETHODIMP put_iSQL20_MotorBD(MotoresBD Valor) noexcept override { return contract().put_MotorBD(Valor); }
  STDMETHODIMP get_iSQL20_MotorBD(MotoresBD* Resultado) noexcept override { return contract().get_MotorBD(Resultado); }

 protected:
  virtual Contract& contract() noexcept = 0;
};

}  // namespace qvr::com
