#pragma once

#include "frame/automation/object.h"
#include "query/automation/contract.h"
#include "query/automation/prefixed_contract.h"
#include "query/usql20.h"

namespace qvr::automation {

class uSQL20Object final : public Object<::uSQL20, PrefixedContract<_uSQL20>, Contract> {
 public:
  STDMETHODIMP get_Name(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return core_.Name(); });
  }

 private:
  qvr::iSQL20& query() noexcept override { return core_; }

  qvr::uSQL20 core_;
};

}  // namespace qvr::automation
