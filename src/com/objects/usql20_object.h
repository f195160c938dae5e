#pragma once

#include "com/object.h"
#include "com/objects/prefixed_contract.h"
#include "query/usql20.h"

namespace qvr::com {

class uSQL20Object final : public Object<::uSQL20, PrefixedContract<_uSQL20>, Contract> {
 public:
  STDMETHODIMP get_Name(BSTR* Resultado) noexcept override {
    return answer_while_kept(Resultado, [&] { return core_.Name(); });
  }

 private:
  qvr::iSQL20& query() noexcept override { return core_; }
  REFCLSID owner() const noexcept override { return __uuidof(::uSQL20); }
  Contract& contract() noexcept override { return *this; }

  qvr::uSQL20 core_;
};

}  // namespace qvr::com
