// One argument of a late-bound call, as the member takes it.
#pragma once

#include "com/signature.h"
#include "com/variant.h"

namespace qvr::com {

// What is of the very type that the parameter has is passed on, as an early-bound caller passes it: variables by
// reference, values by value. Everything else is converted into storage of the slot's own and given back from there.
class ArgumentSlot {
 public:
  // Converts the argument (null or "missing": left out) to the parameter's type.
  HRESULT take(const Parameter& parameter, const VARIANT* argument, LCID locale) noexcept;

  // What the member is called with, as DispCallFunc takes it: the value, or its address where the parameter is by
  // reference. Valid as long as the slot stays where it is.
  struct Passed {
    VARTYPE type;
    VARIANT* value;
  };
  Passed passed() noexcept;

  // Writes the value to the caller's variable when the argument came by reference and the member changed it.
  void give_back(VARIANT& argument, LCID locale) noexcept;

 private:
  void* borrowed(const VARIANT& argument) noexcept;
  void* callers_variable(const VARIANT& argument, const VARIANT& inner) const noexcept;
  HRESULT convert(const Parameter& parameter, const VARIANT* inner, LCID locale) noexcept;
  HRESULT take_missing(const Parameter& parameter) noexcept;
  bool changed() const noexcept;

  OwnedVariant held_;
  VARIANT before_;             // bits of the value as it was taken, never released; by reference, they are compared
  VARIANT reference_;          // where the value is, for a parameter by reference
  void* passed_on_ = nullptr;  // instead of what is held: the caller's variable or bits
  VARTYPE type_ = VT_EMPTY;
  bool by_reference_ = false;
};

}  // namespace qvr::com
