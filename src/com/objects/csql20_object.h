#pragma once

#include "com/object.h"
#include "com/objects/prefixed_contract.h"
#include "query/csql20.h"

namespace qvr::com {

// The members of this class only; the others are in contract.h.
class cSQL20Object final : public Object<::cSQL20, PrefixedContract<_cSQL20>, Contract> {
 public:
  STDMETHODIMP get_Name(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return core_.Name(); });
  }
  STDMETHODIMP AmpliarCondicionHaving(BSTR* Condicion, BSTR* Criterio, VARIANT_BOOL* Resultado) noexcept override {
    return answer_while_kept(Resultado,
                             [&] { return core_.AmpliarCondicionHaving(text_of(Condicion), text_of(Criterio)); });
  }
  STDMETHODIMP CambiaCondicion(BSTR* NuevaCondicionWhere, BSTR* NuevaCondicionHaving) noexcept override {
    return perform_while_kept(
        [&] { core_.CambiaCondicion(text_of(NuevaCondicionWhere), text_of(NuevaCondicionHaving)); });
  }
  STDMETHODIMP ParteWhere(VARIANT_BOOL* SoloCondicion, BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return core_.ParteWhere(truth_of(SoloCondicion)); });
  }
  STDMETHODIMP ParteHaving(VARIANT_BOOL* SoloCondicion, BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return core_.ParteHaving(truth_of(SoloCondicion)); });
  }
  STDMETHODIMP ExpresionOriginal(BSTR* NombreCampoRS, BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return core_.ExpresionOriginal(text_of(NombreCampoRS)); });
  }

 private:
  qvr::iSQL20& query() noexcept override { return core_; }
  REFCLSID owner() const noexcept override { return __uuidof(::cSQL20); }
  Contract& contract() noexcept override { return *this; }

  qvr::cSQL20 core_;
};

}  // namespace qvr::com
