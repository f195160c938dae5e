// A call with its arguments prepared, so that nothing else runs under the floating-point state that a test sets.
#pragma once

#include <memory>

#include "automation/host.h"

namespace qvr::tests {

class PreparedCall {
 public:
  virtual ~PreparedCall() = default;
  virtual void run() = 0;

  HRESULT status() const { return status_; }
  // "BSTR abc", or "failed 80020005".
  std::string outcome() const;

 protected:
  HRESULT status_ = E_FAIL;
  Var result_;
};

// By Invoke, with the arguments by value.
std::unique_ptr<PreparedCall> late_call(IDispatch* object, const wchar_t* member, WORD kind,
                                        std::vector<Var> arguments);

// Through the slot that the object's type information tells, with the arguments as the parameters' types.
std::unique_ptr<PreparedCall> early_call(IDispatch* object, const wchar_t* member, WORD kind,
                                         std::vector<Var> arguments);

}  // namespace qvr::tests
