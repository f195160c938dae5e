#pragma once

#include "QVRlib21.h"
#include "com/object.h"

namespace qvr::com {

class OvObject final : public Object<::Ov, Dual<_Ov>> {
 public:
  STDMETHODIMP Version(LONG* Resultado) noexcept override;
  STDMETHODIMP CadenaVersion(BSTR* Resultado) noexcept override;
  STDMETHODIMP Path(BSTR* Resultado) noexcept override;
  STDMETHODIMP PathCompleto(BSTR* Resultado) noexcept override;
};

}  // namespace qvr::com
