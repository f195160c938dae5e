// One argument of a late-bound call, converted to its parameter's type.
#pragma once

#include "com/signature.h"
#include "com/variant.h"

namespace qvr::com {

// An argument that has the parameter's type already is passed on without a copy, as an early-bound caller would. Any
// other is converted into storage of the slot and written back from there.
class ArgumentSlot {
 public:
  // Converts the argument (omitted: null or DISP_E_PARAMNOTFOUND) to the parameter's type.
  HRESULT take(const Parameter& parameter, const VARIANT* argument, LCID locale) noexcept;

  // The argument for DispCallFunc: the value, or its address for a by-reference parameter. Valid until the slot is
  // moved or destroyed.
  struct Passed {
    VARTYPE type;
    VARIANT* value;
  };
  Passed passed() noexcept;

  // Writes the value back when the argument was passed by reference and the member changed it.
  void give_back(VARIANT& argument, LCID locale) noexcept;

 private:
  void* borrowed(const VARIANT& argument) noexcept;
  void* callers_variable(const VARIANT& argument, const VARIANT& inner) const noexcept;
  HRESULT convert(const Parameter& parameter, const VARIANT* inner, LCID locale) noexcept;
  HRESULT take_missing(const Parameter& parameter) noexcept;
  bool changed() const noexcept;

  OwnedVariant held_;
  VARIANT before_;             // bits of the original value, not owned, to detect a change
  VARIANT reference_;          // VT_BYREF to the value, for a by-reference parameter
  void* passed_on_ = nullptr;  // the caller's variable or bits, if passed on without a copy
  VARTYPE type_ = VT_EMPTY;
  bool by_reference_ = false;
};

}  // namespace qvr::com
