// Values as VARIANTs.
#pragma once

#include "base/value.h"
#include "com/com.h"
#include "com/host_ptr.h"

namespace qvr::com {

class OwnedVariant {
 public:
  OwnedVariant() noexcept = default;
  ~OwnedVariant() {
    if (!holds_nothing(held_.vt)) let_go();
  }
  OwnedVariant(const OwnedVariant&) = delete;
  OwnedVariant& operator=(const OwnedVariant&) = delete;

  VARIANT* get() { return &held_; }
  const VARIANT& operator*() const { return held_; }
  VARIANT* operator->() { return &held_; }
  // Whether what a variant of this type holds is all in the variant itself.
  static bool holds_nothing(VARTYPE type) noexcept {
    return type <= VT_DATE || type == VT_ERROR || type == VT_BOOL || (type >= VT_I1 && type <= VT_UINT);
  }
  // Gives the content away; what stays is Empty.
  VARIANT release() noexcept {
    const VARIANT content = held_;
    VariantInit(&held_);
    return content;
  }

 private:
  void let_go() noexcept;

  VARIANT held_{};  // all zero, so that a typed variant is releasable before its content comes
};

// An object that a host handed over, kept alive by the value that holds it.
struct DispatchObject : Object {
  explicit DispatchObject(IUnknown* held) : object(held) {}
  HostPtr<IUnknown> object;
};

// A deep copy of what the variant holds or refers to.
inline HRESULT copy_content(VARIANT& to, const VARIANT& from) noexcept {
  const HostFloatingPoint host;
  return VariantCopyInd(&to, const_cast<VARIANT*>(&from));
}

// Converts as Visual Basic hosts do. An object stands for the value of its default property.
HRESULT convert_content(VARIANT& to, const VARIANT& from, VARTYPE type, LCID locale) noexcept;

// Variants of variants by reference lead to the value in the end; null for one that leads nowhere or into itself.
const VARIANT* innermost(const VARIANT& variant) noexcept;

// By-reference variants count as what they refer to. A kind of variant that no value stands for is an ErrorValue.
Value value_from(const VARIANT& variant);

// Writes the value into the variant, which is Empty. Throws when there is no memory.
void put_value(VARIANT& variant, const Value& value);

// Puts the elements of an array value into the array that the variant holds or refers to, which keeps its type and
// bounds. Only where both have the same bounds; an element of a type that its value does not convert to stays as it is.
void put_elements(VARIANT& variant, const Value& value);

}  // namespace qvr::com
