#pragma once

#include "QVRlib21.h"
#include "frame/automation/object.h"

namespace qvr::automation {

class OvObject final : public Object<::Ov, Dual<_Ov>> {
 public:
  STDMETHODIMP Version(LONG* Resultado) noexcept override;
  STDMETHODIMP CadenaVersion(BSTR* Resultado) noexcept override;
  STDMETHODIMP Path(BSTR* Resultado) noexcept override;
  STDMETHODIMP PathCompleto(BSTR* Resultado) noexcept override;
};

}  // namespace qvr::automation
