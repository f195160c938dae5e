// The interface iSQL20 on a core query.
#pragma once

#include "com/dual.h"
#include "com/objects/query_request.h"

namespace qvr::com {

class Contract : public Dual<_iSQL20> {
 public:
  STDMETHODIMP get_CriterioActualCompleto(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().CriterioActualCompleto(); });
  }
  STDMETHODIMP put_CriterioActualCompleto(BSTR Valor) noexcept override {
    return perform_while_kept([&] { query().CriterioActualCompleto(text_from(Valor)); });
  }
  STDMETHODIMP AdoptaComoOriginal(VARIANT_BOOL* AdoptarWhere, VARIANT_BOOL* AdoptarHaving,
                                  VARIANT_BOOL* AdoptarOrder) noexcept override {
    return perform_while_kept(
        [&] { query().AdoptaComoOriginal(truth_of(AdoptarWhere), truth_of(AdoptarHaving), truth_of(AdoptarOrder)); });
  }
  STDMETHODIMP AmpliarCondicionWhere(BSTR* Condicion, BSTR* Criterio, VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(Resultado,
                             [&] { return query().AmpliarCondicionWhere(text_of(Condicion), text_of(Criterio)); });
  }
  STDMETHODIMP AmpliarOrden(SHORT* NuevaColumna, VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().AmpliarOrden(short_of(NuevaColumna)); });
  }
  STDMETHODIMP CambiaOrden(BSTR* NuevoOrden) noexcept override {
    return perform_while_kept([&] { query().CambiaOrden(text_of(NuevoOrden)); });
  }
  STDMETHODIMP get_Creado(VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().Creado(); });
  }
  STDMETHODIMP Crear(LONG* MotorBD, BSTR* NombreObjeto, VARIANT_BOOL* UsarDistinct, VARIANT* ColumnasSELECT,
                     BSTR* TablasFROM, VARIANT* RelacionTablas, BSTR* CondicionWHEREInicial, SHORT* NumColumnasGROUPBY,
                     BSTR* CondicionHAVINGInicial, BSTR* TextoORDERBYInicial, LONG* TOP, LONG* Idioma,
                     VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] {
      return query().Crear(query_request(MotorBD, NombreObjeto, UsarDistinct, ColumnasSELECT, TablasFROM,
                                         RelacionTablas, CondicionWHEREInicial, NumColumnasGROUPBY,
                                         CondicionHAVINGInicial, TextoORDERBYInicial, TOP, Idioma));
    });
  }
  STDMETHODIMP CrearDesdeTextoDefinicion(BSTR* TextoDefinicion, VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().CrearDesdeTextoDefinicion(text_of(TextoDefinicion)); });
  }
  STDMETHODIMP get_TextoDefinicion(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().TextoDefinicion(); });
  }
  STDMETHODIMP get_CriterioActual(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().CriterioActual(); });
  }
  STDMETHODIMP InterpretarBusqueda(BSTR* NombreCampoRS, BSTR* TextoBusqueda, BSTR* Criterio,
                                   VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] {
      return query().InterpretarBusqueda(text_of(NombreCampoRS), text_of(TextoBusqueda), text_of(Criterio));
    });
  }
  STDMETHODIMP ParteOrder(VARIANT_BOOL* SinClausula, BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().ParteOrder(truth_of(SinClausula)); });
  }
  STDMETHODIMP RestauraOriginal(VARIANT_BOOL* RestaurarWhereYHaving, VARIANT_BOOL* RestaurarOrder) noexcept override {
    return perform_while_kept(
        [&] { query().RestauraOriginal(truth_of(RestaurarWhereYHaving), truth_of(RestaurarOrder)); });
  }
  STDMETHODIMP get_SQL(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().SQL(); });
  }
  STDMETHODIMP get_SQLOriginal(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().SQLOriginal(); });
  }
  STDMETHODIMP get_SQLOriginalSinOrden(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().SQLOriginalSinOrden(); });
  }
  STDMETHODIMP get_SQLSinOrden(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().SQLSinOrden(); });
  }
  STDMETHODIMP TipoCampo(BSTR* NombreCampoRS, BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().TipoCampo(text_of(NombreCampoRS)); });
  }
  STDMETHODIMP NumColumna(BSTR* NombreCampoRS, SHORT* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().NumColumna(text_of(NombreCampoRS)); });
  }
  STDMETHODIMP NumColumnas(SHORT* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().NumColumnas(); });
  }
  STDMETHODIMP get_Tag(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().Tag(); });
  }
  STDMETHODIMP put_Tag(BSTR Valor) noexcept override {
    return perform_while_kept([&] { query().Tag(text_from(Valor)); });
  }
  STDMETHODIMP put_TOP(LONG Valor) noexcept override {
    return perform_while_kept([&] { query().TOP(Valor); });
  }
  STDMETHODIMP get_TOP(LONG* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().TOP(); });
  }
  STDMETHODIMP put_Idioma(LONG Valor) noexcept override {
    return perform_while_kept([&] { query().Idioma(Valor); });
  }
  STDMETHODIMP get_Idioma(LONG* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().Idioma(); });
  }
  STDMETHODIMP put_MotorBD(MotoresBD Valor) noexcept override {
    return perform_while_kept([&] { query().MotorBD(static_cast<Engine>(Valor)); });
  }
  STDMETHODIMP get_MotorBD(MotoresBD* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return query().MotorBD(); });
  }

 protected:
  virtual qvr::iSQL20& query() noexcept = 0;
  virtual REFCLSID owner() const noexcept = 0;  // the class for the trace

 private:
  // As in Object, which these members cannot reach.
  template <class Out, class Body>
  HRESULT answer_while_kept(Out* out, Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
    const ComPtr<Contract> kept(this);
    return answer(owner(), out, std::forward<Body>(body), place);
  }
  template <class Body>
  HRESULT perform_while_kept(Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
    const ComPtr<Contract> kept(this);
    return perform(owner(), std::forward<Body>(body), place);
  }
};

}  // namespace qvr::com
