// Storage of our own for one argument of a late-bound call.
#pragma once

#include "frame/automation/signature.h"
#include "frame/automation/variant.h"

namespace qvr::automation {

class ArgumentSlot {
 public:
  // Converts the argument (null or "missing": left out) to the parameter's type.
  HRESULT take(const Parameter& parameter, const VARIANT* argument, LCID locale) noexcept;

  // What the member is called with: the value, or its address where the parameter is by reference. Valid as long as
  // the slot stays where it is.
  VARIANT as_passed() noexcept;
  // The parameter's type, not that of a value in a variant.
  VARTYPE type_passed() const noexcept;

  // Writes the value to the caller's variable when the argument came by reference and the member changed it.
  void give_back(VARIANT& argument, LCID locale) noexcept;

 private:
  void refer_to(const VARIANT& array) noexcept;
  HRESULT take_missing(const Parameter& parameter) noexcept;
  bool changed() const noexcept;

  OwnedVariant held_;
  VARIANT before_{};  // bits of the value as it was taken; compared, never released
  VARTYPE type_ = VT_EMPTY;
  bool by_reference_ = false;
};

}  // namespace qvr::automation
