#include "automation/stress/callers_memory.h"

#include <gtest/gtest.h>

#include <vector>

namespace qvr::tests {
namespace {

void add_bits(std::string& picture, const void* at, std::size_t size) {
  picture.append(static_cast<const char*>(at), size);
}

std::size_t elements_of(const SAFEARRAY& array) {
  std::size_t count = 1;
  for (USHORT i = 0; i < array.cDims; ++i) count *= array.rgsabound[i].cElements;
  return count;
}

}  // namespace

CallersMemory::~CallersMemory() {
  for (BSTR text : texts_) SysFreeString(text);
  for (SAFEARRAY* array : arrays_) {
    if (array == nullptr) continue;
    while (array->cLocks > 0) SafeArrayUnlock(array);
    EXPECT_EQ(SafeArrayDestroy(array), S_OK);
  }
}

BSTR& CallersMemory::text(std::wstring_view content) {
  return texts_.emplace_back(SysAllocStringLen(content.data(), static_cast<UINT>(content.size())));
}

BSTR& CallersMemory::bytes_as_text(std::string_view bytes) {
  return texts_.emplace_back(SysAllocStringByteLen(bytes.data(), static_cast<UINT>(bytes.size())));
}

BSTR& CallersMemory::no_text() { return texts_.emplace_back(nullptr); }

VARIANT& CallersMemory::variant() { return variants_.emplace_back(VARIANT{}); }

VARIANT& CallersMemory::variant(VARTYPE type, void* refers_to) {
  return variants_.emplace_back(variant_of(type, refers_to));
}

void* CallersMemory::variable() { return variables_.emplace_back(Variable{}).bytes; }

SAFEARRAY*& CallersMemory::array(VARTYPE type, LONG lower, ULONG count) { return array(type, {{count, lower}}); }

SAFEARRAY*& CallersMemory::array(VARTYPE type, std::initializer_list<SAFEARRAYBOUND> bounds) {
  std::vector<SAFEARRAYBOUND> list(bounds);
  return keep(SafeArrayCreate(type, static_cast<UINT>(list.size()), list.data()));
}

SAFEARRAY*& CallersMemory::no_array() { return arrays_.emplace_back(nullptr); }

SAFEARRAY*& CallersMemory::keep(SAFEARRAY* array) {
  EXPECT_NE(array, nullptr);
  return arrays_.emplace_back(array);
}

std::string CallersMemory::picture() const {
  std::string bits;
  for (const BSTR& text : texts_) {
    add_bits(bits, &text, sizeof text);
    if (text != nullptr) add_bits(bits, text, SysStringByteLen(text));
  }
  for (const VARIANT& variant : variants_) add_bits(bits, &variant, sizeof variant);
  for (const Variable& variable : variables_) add_bits(bits, variable.bytes, sizeof variable.bytes);
  for (SAFEARRAY* array : arrays_) {
    add_bits(bits, &array, sizeof array);
    if (array == nullptr) continue;
    add_bits(bits, array, sizeof *array + (array->cDims - 1u) * sizeof(SAFEARRAYBOUND));
    if (array->pvData != nullptr) add_bits(bits, array->pvData, elements_of(*array) * array->cbElements);
  }
  return bits;
}

VARIANT variant_of(VARTYPE type, void* content) {
  VARIANT made{};
  made.vt = type;
  made.byref = content;
  return made;
}

}  // namespace qvr::tests
