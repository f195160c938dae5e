#include <algorithm>
#include <iterator>

#include "automation/variant_list.h"

namespace qvr::tests {
namespace {

struct TypeName {
  VARTYPE type;
  const char* name;
};

constexpr TypeName kTypeNames[] = {
    {VT_EMPTY, "Empty"},
    {VT_NULL, "Null"},
    {VT_I2, "I2"},
    {VT_I4, "I4"},
    {VT_R4, "R4"},
    {VT_R8, "R8"},
    {VT_CY, "CY"},
    {VT_DATE, "DATE"},
    {VT_BSTR, "BSTR"},
    {VT_ERROR, "ERROR"},
    {VT_DISPATCH, "DISPATCH"},
    {VT_BOOL, "BOOL"},
    {VT_I1, "I1"},
    {VT_VARIANT, "VARIANT"},
    {VT_UI1, "UI1"},
    {VT_UNKNOWN, "UNKNOWN"},
    {VT_UI2, "UI2"},
    {VT_UI4, "UI4"},
    {VT_DECIMAL, "DECIMAL"},
    {VT_I8, "I8"},
    {VT_UI8, "UI8"},
    {VT_INT, "INT"},
    {VT_UINT, "UINT"},
};

std::string name_of(VARTYPE type) {
  const auto* found = std::ranges::find_if(kTypeNames, [&](const TypeName& row) { return row.type == type; });
  return found != std::end(kTypeNames) ? found->name : "type " + std::to_string(type);
}

std::string text_of(const VARIANT& value) {
  Var text;
  constexpr LCID kUnitedStates = 0x409;
  VariantChangeTypeEx(&text.raw(), const_cast<VARIANT*>(&value), kUnitedStates, 0, VT_BSTR);
  return narrow(text.text());
}

std::string content_of(const VARIANT& value) {
  switch (value.vt) {
    case VT_BSTR: return value.bstrVal != nullptr ? narrow({value.bstrVal, SysStringLen(value.bstrVal)}) : "";
    case VT_R8: return std::to_string(value.dblVal);
    case VT_DATE: return std::to_string(value.date);
    case VT_BOOL: return value.boolVal == VARIANT_TRUE ? "true" : value.boolVal == 0 ? "false" : "odd";
    case VT_DISPATCH:
    case VT_UNKNOWN: return value.punkVal != nullptr ? "object" : "Nothing";
    case VT_ERROR: return std::to_string(value.scode);
    default: return text_of(value);
  }
}

// An element read into a variant of its own type.
Var element(SAFEARRAY* array, VARTYPE type, LONG index) {
  Var item;
  void* target = type == VT_VARIANT ? static_cast<void*>(&item.raw()) : &item.raw().llVal;
  SafeArrayGetElement(array, &index, type == VT_DECIMAL ? &item.raw().decVal : target);
  if (type != VT_VARIANT) item.raw().vt = type;
  return item;
}

std::string array_text(SAFEARRAY* array, VARTYPE named) {
  if (array == nullptr) return name_of(named) + "() none";
  VARTYPE type = VT_EMPTY;
  LONG lower = 0, upper = -1;
  SafeArrayGetVartype(array, &type);
  SafeArrayGetLBound(array, 1, &lower);
  SafeArrayGetUBound(array, 1, &upper);
  std::string text = name_of(type) + "(" + std::to_string(lower) + ") {";
  const UINT dimensions = SafeArrayGetDim(array);
  if (dimensions != 1) return name_of(type) + "() of " + std::to_string(dimensions) + " dimensions";
  if (array->pvData == nullptr && upper >= lower) return name_of(type) + "() hollow";
  for (LONGLONG i = lower; i <= upper; ++i) {
    text += (i > lower ? "; " : "") + describe(element(array, type, static_cast<LONG>(i)).raw());
  }
  return text + "}";
}

}  // namespace

std::string describe(const VARIANT& value) {
  if (value.vt == (VT_BYREF | VT_VARIANT)) return describe(*value.pvarVal);
  const auto type = static_cast<VARTYPE>(value.vt & VT_TYPEMASK);
  if (value.vt & VT_ARRAY) return array_text(value.vt & VT_BYREF ? *value.pparray : value.parray, type);
  if (value.vt == VT_EMPTY || value.vt == VT_NULL || value.vt != type) return name_of(value.vt);
  return name_of(type) + " " + content_of(value);
}

}  // namespace qvr::tests
