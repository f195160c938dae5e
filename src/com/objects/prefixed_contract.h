// The contract's members as a class has them on its default interface, where their names begin with "iSQL20_".
#pragma once

#include "com/dual.h"
#include "com/objects/query_request.h"

namespace qvr::com {

template <class I>
class PrefixedContract : public Dual<I> {
 public:
  STDMETHODIMP get_iSQL20_CriterioActualCompleto(BSTR* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().CriterioActualCompleto(); });
  }
  STDMETHODIMP put_iSQL20_CriterioActualCompleto(BSTR Valor) noexcept override {
    return perform_while_kept(*this, [&] { this->query().CriterioActualCompleto(text_from(Valor)); });
  }
  STDMETHODIMP iSQL20_AdoptaComoOriginal(VARIANT_BOOL* AdoptarWhere, VARIANT_BOOL* AdoptarHaving,
                                         VARIANT_BOOL* AdoptarOrder) noexcept override {
    return perform_while_kept(*this, [&] {
      this->query().AdoptaComoOriginal(truth_of(AdoptarWhere), truth_of(AdoptarHaving), truth_of(AdoptarOrder));
    });
  }
  STDMETHODIMP iSQL20_AmpliarCondicionWhere(BSTR* Condicion, BSTR* Criterio,
                                            VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] {
      return this->query().AmpliarCondicionWhere(text_of(Condicion), text_of(Criterio));
    });
  }
  STDMETHODIMP iSQL20_AmpliarOrden(SHORT* NuevaColumna, VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().AmpliarOrden(short_of(NuevaColumna)); });
  }
  STDMETHODIMP iSQL20_CambiaOrden(BSTR* NuevoOrden) noexcept override {
    return perform_while_kept(*this, [&] { this->query().CambiaOrden(text_of(NuevoOrden)); });
  }
  STDMETHODIMP get_iSQL20_Creado(VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().Creado(); });
  }
  STDMETHODIMP iSQL20_Crear(LONG* MotorBD, BSTR* NombreObjeto, VARIANT_BOOL* UsarDistinct, VARIANT* ColumnasSELECT,
                            BSTR* TablasFROM, VARIANT* RelacionTablas, BSTR* CondicionWHEREInicial,
                            SHORT* NumColumnasGROUPBY, BSTR* CondicionHAVINGInicial, BSTR* TextoORDERBYInicial,
                            LONG* TOP, LONG* Idioma, VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] {
      return this->query().Crear(query_request(MotorBD, NombreObjeto, UsarDistinct, ColumnasSELECT, TablasFROM,
                                               RelacionTablas, CondicionWHEREInicial, NumColumnasGROUPBY,
                                               CondicionHAVINGInicial, TextoORDERBYInicial, TOP, Idioma));
    });
  }
  STDMETHODIMP iSQL20_CrearDesdeTextoDefinicion(BSTR* TextoDefinicion, VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado,
                             [&] { return this->query().CrearDesdeTextoDefinicion(text_of(TextoDefinicion)); });
  }
  STDMETHODIMP get_iSQL20_TextoDefinicion(BSTR* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().TextoDefinicion(); });
  }
  STDMETHODIMP get_iSQL20_CriterioActual(BSTR* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().CriterioActual(); });
  }
  STDMETHODIMP iSQL20_InterpretarBusqueda(BSTR* NombreCampoRS, BSTR* TextoBusqueda, BSTR* Criterio,
                                          VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] {
      return this->query().InterpretarBusqueda(text_of(NombreCampoRS), text_of(TextoBusqueda), text_of(Criterio));
    });
  }
  STDMETHODIMP iSQL20_ParteOrder(VARIANT_BOOL* SinClausula, BSTR* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().ParteOrder(truth_of(SinClausula)); });
  }
  STDMETHODIMP iSQL20_RestauraOriginal(VARIANT_BOOL* RestaurarWhereYHaving,
                                       VARIANT_BOOL* RestaurarOrder) noexcept override {
    return perform_while_kept(*this, [&] {
      this->query().RestauraOriginal(truth_of(RestaurarWhereYHaving), truth_of(RestaurarOrder));
    });
  }
  STDMETHODIMP get_iSQL20_SQL(BSTR* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().SQL(); });
  }
  STDMETHODIMP get_iSQL20_SQLOriginal(BSTR* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().SQLOriginal(); });
  }
  STDMETHODIMP get_iSQL20_SQLOriginalSinOrden(BSTR* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().SQLOriginalSinOrden(); });
  }
  STDMETHODIMP get_iSQL20_SQLSinOrden(BSTR* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().SQLSinOrden(); });
  }
  STDMETHODIMP iSQL20_TipoCampo(BSTR* NombreCampoRS, BSTR* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().TipoCampo(text_of(NombreCampoRS)); });
  }
  STDMETHODIMP iSQL20_NumColumna(BSTR* NombreCampoRS, SHORT* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().NumColumna(text_of(NombreCampoRS)); });
  }
  STDMETHODIMP iSQL20_NumColumnas(SHORT* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().NumColumnas(); });
  }
  STDMETHODIMP get_iSQL20_Tag(BSTR* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().Tag(); });
  }
  STDMETHODIMP put_iSQL20_Tag(BSTR Valor) noexcept override {
    return perform_while_kept(*this, [&] { this->query().Tag(text_from(Valor)); });
  }
  STDMETHODIMP put_iSQL20_TOP(LONG Valor) noexcept override {
    return perform_while_kept(*this, [&] { this->query().TOP(Valor); });
  }
  STDMETHODIMP get_iSQL20_TOP(LONG* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().TOP(); });
  }
  STDMETHODIMP put_iSQL20_Idioma(LONG Valor) noexcept override {
    return perform_while_kept(*this, [&] { this->query().Idioma(Valor); });
  }
  STDMETHODIMP get_iSQL20_Idioma(LONG* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().Idioma(); });
  }
  STDMETHODIMP put_iSQL20_MotorBD(MotoresBD Valor) noexcept override {
    return perform_while_kept(*this, [&] { this->query().MotorBD(static_cast<Engine>(Valor)); });
  }
  STDMETHODIMP get_iSQL20_MotorBD(MotoresBD* Resultado) noexcept override {
    return answer_while_kept(*this, Resultado, [&] { return this->query().MotorBD(); });
  }

 protected:
  virtual qvr::iSQL20& query() noexcept = 0;
};

}  // namespace qvr::com
