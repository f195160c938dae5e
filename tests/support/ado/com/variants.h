// Automation values and ours.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <vector>

#include "base/value.h"

namespace qvr::tests::com {

// An answer of IDispatch itself, rather than of the called object.
struct DispatchFailure {
  HRESULT result;
};

inline Text to_text(BSTR text) {
  return text == nullptr ? Text() : Text(reinterpret_cast<const char16_t*>(text), SysStringLen(text));
}

BSTR to_bstr(TextView text);  // throws std::bad_alloc

class OwnedVariant : public VARIANT {
 public:
  OwnedVariant() { VariantInit(this); }
  ~OwnedVariant() { VariantClear(this); }
  OwnedVariant(const OwnedVariant&) = delete;
  OwnedVariant& operator=(const OwnedVariant&) = delete;
};

// These throw DispatchFailure with DISP_E_TYPEMISMATCH for what they cannot take. References are followed.
void follow(const VARIANT& from, OwnedVariant& to);
void convert(const VARIANT& from, VARTYPE type, OwnedVariant& to);
Value to_value(const VARIANT& from);
std::vector<Value> to_values(const VARIANT& from);  // the elements of an array, or the one value that is none

// `to` is taken as uninitialised.
void to_variant(const Value& from, VARIANT& to);

}  // namespace qvr::tests::com
