// Conversion between Value and VARIANT.
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
  // Whether a variant of this type owns no string, object or array.
  static bool holds_nothing(VARTYPE type) noexcept {
    return type <= VT_DATE || type == VT_ERROR || type == VT_BOOL || (type >= VT_I1 && type <= VT_UINT);
  }
  // Releases ownership of the content; leaves VT_EMPTY.
  VARIANT release() noexcept {
    const VARIANT content = held_;
    VariantInit(&held_);
    return content;
  }

 private:
  void let_go() noexcept;

  VARIANT held_{};  // zeroed, so that VariantClear is safe once the type is set
};

// An object of the host in a Value, which holds a reference.
struct DispatchObject : Object {
  explicit DispatchObject(IUnknown* held) : object(held) {}
  HostPtr<IUnknown> object;
};

// A copy of an array that only travels through.
struct TravellingArray : Object {
  OwnedVariant array;
};

// A deep copy; by-reference variants are dereferenced.
inline HRESULT copy_content(VARIANT& to, const VARIANT& from) noexcept {
  const HostFloatingPoint host;
  return VariantCopyInd(&to, const_cast<VARIANT*>(&from));
}

// VariantChangeType by the rules of Visual Basic; an object converts by its default property.
HRESULT convert_content(VARIANT& to, const VARIANT& from, VARTYPE type, LCID locale) noexcept;

// Follows VT_BYREF | VT_VARIANT; null for a null pointer and for a variant that refers to itself.
const VARIANT* innermost(const VARIANT& variant) noexcept;

// By-reference variants are dereferenced. Types that Value does not have become an ErrorValue.
Value value_from(const VARIANT& variant);

// The same for a value that only travels through and is given back by put_value. An array keeps its element type,
// dimensions and bounds; its value shows the core an object. An integer of a type that Visual Basic does not have
// becomes the smallest of Visual Basic's types that holds all of its type.
Value travelling_value_from(const VARIANT& variant);

// Writes the value into the variant, which must be VT_EMPTY. Throws when out of memory.
void put_value(VARIANT& variant, const Value& value);

// Copies the elements of an array value into the variant's array (by value or by reference), which keeps its element
// type and bounds; an array with other bounds stays as it is. Throws when a value does not convert to the element type,
// and then the array is untouched.
void put_elements(VARIANT& variant, const Value& value);

}  // namespace qvr::com
