#include "automation/arrays.h"

#include <gtest/gtest.h>

namespace qvr::tests {
namespace {

Var holding(SAFEARRAY* array, VARTYPE type) {
  Var var;
  var.raw().vt = static_cast<VARTYPE>(VT_ARRAY | type);
  var.raw().parray = array;
  return var;
}

}  // namespace

Var array_of(const std::vector<Var>& items, LONG lower, VARTYPE type) {
  SAFEARRAY* const array = SafeArrayCreateVector(type, lower, static_cast<ULONG>(items.size()));
  LONG index = lower;
  for (const Var& item : items) {
    Var element = type == VT_VARIANT ? item : item.as(type);
    VARIANT& raw = element.raw();
    const bool pointer = type == VT_BSTR || type == VT_DISPATCH || type == VT_UNKNOWN;
    void* content = type == VT_VARIANT ? static_cast<void*>(&raw) : pointer ? raw.byref : &raw.llVal;
    if (type == VT_DECIMAL) content = &raw.decVal;
    EXPECT_EQ(SafeArrayPutElement(array, &index, content), S_OK);
    ++index;
  }
  return holding(array, type);
}

Var square_array() {
  SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
  return holding(SafeArrayCreate(VT_VARIANT, 2, bounds), VT_VARIANT);
}

Var no_array(VARTYPE type) { return holding(nullptr, type); }

Var hollow_array(VARTYPE type, ULONG count) {
  SAFEARRAYBOUND bounds{count, 0};
  SAFEARRAY* const array = SafeArrayCreate(type, 1, &bounds);
  EXPECT_EQ(SafeArrayDestroyData(array), S_OK);
  return holding(array, type);
}

}  // namespace qvr::tests
