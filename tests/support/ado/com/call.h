// The arguments of one call through IDispatch, in the order of the member's declaration, and its answer.
#pragma once

#include "support/ado/com/variants.h"

namespace qvr::tests::com {

class Call {
 public:
  // `result` may be null: the caller does not want the answer.
  Call(const DISPPARAMS& arguments, VARIANT* result) : arguments_(arguments), result_(result) {}

  unsigned count() const { return arguments_.cArgs; }
  bool given(unsigned index) const;  // passed, and not passed as left out

  // Each throws DispatchFailure for an argument of another kind.
  const VARIANT& raw(unsigned index) const { return arguments_.rgvarg[arguments_.cArgs - 1 - index]; }
  Text text(unsigned index) const;
  std::int32_t integer(unsigned index) const;
  bool truth(unsigned index) const;
  Value value(unsigned index) const { return to_value(raw(index)); }

  Text text_or_none(unsigned index) const { return given(index) ? text(index) : Text(); }
  std::int32_t integer_or(unsigned index, std::int32_t otherwise) const {
    return given(index) ? integer(index) : otherwise;
  }

  // Stores into the caller's variable, where one was passed.
  void hand_out(unsigned index, std::int32_t number) const;

  void answer(const Value& value) const;
  void answer(IDispatch* object) const;  // null: Nothing
  void answer(IUnknown* object) const;

 private:
  const DISPPARAMS& arguments_;
  VARIANT* result_;
};

}  // namespace qvr::tests::com
