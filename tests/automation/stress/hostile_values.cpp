#include "automation/stress/hostile_values.h"

#include <limits>

namespace qvr::tests {
namespace {

template <class Number>
VARIANT number(VARTYPE type, Number value) {
  VARIANT made = variant_of(type);
  static_assert(sizeof value <= sizeof made.llVal);
  memcpy(&made.llVal, &value, sizeof value);
  return made;
}

VARIANT text(CallersMemory& memory, std::wstring_view content) { return variant_of(VT_BSTR, memory.text(content)); }

VARIANT reference(VARTYPE type, void* to) { return variant_of(static_cast<VARTYPE>(VT_BYREF | type), to); }

// A variant behind so many references.
VARIANT nested(CallersMemory& memory, const VARIANT& value, int depth) {
  VARIANT at = value;
  for (int i = 0; i < depth; ++i) {
    VARIANT& kept = memory.variant();
    kept = at;
    at = reference(VT_VARIANT, &kept);
  }
  return at;
}

VARIANT ring(CallersMemory& memory, int size) {
  VARIANT& first = memory.variant();
  VARIANT* last = &first;
  for (int i = 1; i < size; ++i) last = &memory.variant(VT_BYREF | VT_VARIANT, last);
  first = reference(VT_VARIANT, last);
  return first;
}

VARIANT array(SAFEARRAY* held, VARTYPE type = VT_VARIANT) {
  return variant_of(static_cast<VARTYPE>(VT_ARRAY | type), held);
}

VARIANT* items(SAFEARRAY* array) { return static_cast<VARIANT*>(array->pvData); }

VARIANT locked_array(CallersMemory& memory, VARTYPE type) {
  SAFEARRAY* const held = memory.array(type, 0, 3);
  SafeArrayLock(held);
  return array(held, type);
}

// An array of variants of which each refers to the variable that holds the array.
VARIANT array_of_itself(CallersMemory& memory) {
  SAFEARRAY*& held = memory.array(VT_VARIANT, 0, 3);
  for (int i = 0; i < 3; ++i) items(held)[i] = reference(VT_ARRAY | VT_VARIANT, &held);
  return array(held);
}

VARIANT array_of_hostile_items(CallersMemory& memory) {
  SAFEARRAY* const held = memory.array(VT_VARIANT, -1, 6);
  items(held)[0] = reference(VT_BSTR, nullptr);
  items(held)[1] = reference(VT_VARIANT, nullptr);
  items(held)[2] = variant_of(VT_BSTR);
  items(held)[3] = variant_of(VT_RECORD);
  items(held)[4] = variant_of(0x0777);
  items(held)[5] = ring(memory, 2);
  return array(held);
}

VARIANT array_without_data(CallersMemory& memory) {
  SAFEARRAY* const held = memory.array(VT_VARIANT, 0, 3);
  SafeArrayDestroyData(held);
  return array(held);
}

constexpr LONG kLowest = std::numeric_limits<LONG>::min(), kHighest = std::numeric_limits<LONG>::max();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kEndless = std::numeric_limits<double>::infinity();

}  // namespace

std::span<const HostileValue> hostile_values() {
  using M = CallersMemory;
  static const HostileValue rows[] = {
      // Values of every type.
      {"Empty", [](M&) { return variant_of(VT_EMPTY); }},
      {"Null", [](M&) { return variant_of(VT_NULL); }},
      {"missing", [](M&) { return number(VT_ERROR, DISP_E_PARAMNOTFOUND); }},
      {"an error", [](M&) { return number(VT_ERROR, E_FAIL); }},
      {"a truth that is neither", [](M&) { return number(VT_BOOL, VARIANT_BOOL{5}); }},
      {"smallest I1", [](M&) { return number(VT_I1, static_cast<signed char>(-128)); }},
      {"largest UI1", [](M&) { return number(VT_UI1, BYTE{255}); }},
      {"smallest I2", [](M&) { return number(VT_I2, SHORT{-32768}); }},
      {"largest UI2", [](M&) { return number(VT_UI2, USHORT{65535}); }},
      {"smallest I4", [](M&) { return number(VT_I4, kLowest); }},
      {"largest I4", [](M&) { return number(VT_I4, kHighest); }},
      {"largest UI4", [](M&) { return number(VT_UI4, ULONG{0xFFFFFFFF}); }},
      {"smallest INT", [](M&) { return number(VT_INT, kLowest); }},
      {"largest UINT", [](M&) { return number(VT_UINT, ULONG{0xFFFFFFFF}); }},
      {"smallest I8", [](M&) { return number(VT_I8, std::numeric_limits<LONGLONG>::min()); }},
      {"largest UI8", [](M&) { return number(VT_UI8, std::numeric_limits<ULONGLONG>::max()); }},
      {"largest R4", [](M&) { return number(VT_R4, std::numeric_limits<float>::max()); }},
      {"no number", [](M&) { return number(VT_R8, kNoNumber); }},
      {"endless", [](M&) { return number(VT_R8, -kEndless); }},
      {"smallest currency", [](M&) { return number(VT_CY, std::numeric_limits<LONGLONG>::min()); }},
      {"date far away", [](M&) { return number(VT_DATE, 1e300); }},
      {"date that is no number", [](M&) { return number(VT_DATE, kNoNumber); }},
      {"largest decimal",
       [](M&) {
         VARIANT made{};
         made.decVal.Hi32 = 0xFFFFFFFF, made.decVal.Lo64 = ~0ull;
         made.vt = VT_DECIMAL;
         return made;
       }},
      {"decimal with a scale that there is not",
       [](M&) {
         VARIANT made{};
         made.decVal.Lo64 = 1, made.decVal.scale = 200, made.decVal.sign = 3;
         made.vt = VT_DECIMAL;
         return made;
       }},
      // Texts.
      {"null text", [](M&) { return variant_of(VT_BSTR); }},
      {"empty text", [](M& m) { return text(m, L""); }},
      {"text with NULs", [](M& m) { return text(m, std::wstring_view(L"a\0b\0\0c", 6)); }},
      {"text of NULs alone", [](M& m) { return text(m, std::wstring_view(L"\0\0\0", 3)); }},
      {"text of an odd number of bytes", [](M& m) { return variant_of(VT_BSTR, m.bytes_as_text("abc")); }},
      {"halves of characters", [](M& m) { return text(m, L"\xDC00\xD800 \xD800"); }},
      {"quotes and ends of lines", [](M& m) { return text(m, L"'\"`];--\r\n*/%_[!&/()$#=|"); }},
      {"number with much behind it", [](M& m) { return text(m, L"1e999999999"); }},
      {"long text", [](M& m) { return text(m, std::wstring(70000, L'(')); }},
      // Objects.
      {"no object", [](M&) { return variant_of(VT_DISPATCH); }},
      {"no unknown object", [](M&) { return variant_of(VT_UNKNOWN); }},
      {"object without members", [](M&) { return variant_of(VT_UNKNOWN, &object_without_members()); }},
      {"object that fails", [](M&) { return variant_of(VT_DISPATCH, &object_that_fails()); }},
      // Types that no variant may have.
      {"variant by value", [](M&) { return variant_of(VT_VARIANT); }},
      {"record without description", [](M&) { return variant_of(VT_RECORD); }},
      {"type 15", [](M&) { return variant_of(15); }},
      {"HRESULT", [](M&) { return variant_of(VT_HRESULT); }},
      {"LPWSTR", [](M&) { return variant_of(VT_LPWSTR); }},
      {"CLSID", [](M&) { return variant_of(VT_CLSID); }},
      {"type 0x777", [](M&) { return variant_of(0x0777); }},
      {"vector", [](M&) { return variant_of(VT_VECTOR | VT_I4); }},
      {"reserved", [](M&) { return variant_of(VT_RESERVED | VT_I4); }},
      {"all bits", [](M& m) { return variant_of(0xFFFF, m.variable()); }},
      // References.
      {"reference to no text", [](M&) { return reference(VT_BSTR, nullptr); }, true},
      {"reference to no number", [](M&) { return reference(VT_I4, nullptr); }, true},
      {"reference to no truth", [](M&) { return reference(VT_BOOL, nullptr); }, true},
      {"reference to no object", [](M&) { return reference(VT_DISPATCH, nullptr); }, true},
      {"reference to no variant", [](M&) { return reference(VT_VARIANT, nullptr); }, true},
      {"reference to no variable for an array", [](M&) { return reference(VT_ARRAY | VT_VARIANT, nullptr); }, true},
      {"reference to nothing of no type", [](M&) { return reference(VT_EMPTY, nullptr); }, true},
      {"reference of no type", [](M& m) { return reference(VT_EMPTY, m.variable()); }},
      {"reference to Null", [](M& m) { return reference(VT_NULL, m.variable()); }},
      {"reference to type 0x777", [](M& m) { return reference(0x0777, m.variable()); }},
      {"reference to a null text", [](M& m) { return reference(VT_BSTR, &m.no_text()); }},
      {"reference to a text", [](M& m) { return reference(VT_BSTR, &m.text(std::wstring_view(L"7\0", 2))); }},
      {"reference to a number", [](M& m) { return reference(VT_I4, m.variable()); }},
      {"reference to a byte", [](M& m) { return reference(VT_UI1, m.variable()); }},
      {"reference to a truth", [](M& m) { return reference(VT_BOOL, m.variable()); }},
      {"reference to a decimal", [](M& m) { return reference(VT_DECIMAL, m.variable()); }},
      {"reference to nothing", [](M& m) { return reference(VT_DISPATCH, m.variable()); }},
      {"reference to an error", [](M& m) { return reference(VT_ERROR, m.variable()); }},
      {"reference to a variable without an array", [](M& m) { return reference(VT_ARRAY | VT_BSTR, &m.no_array()); }},
      // References of references.
      {"text behind a reference", [](M& m) { return nested(m, text(m, L"3"), 1); }},
      {"number behind references", [](M& m) { return nested(m, number(VT_I4, LONG{1}), 5); }},
      {"number behind as many references as are followed", [](M& m) { return nested(m, number(VT_I4, LONG{1}), 16); }},
      {"number behind too many references", [](M& m) { return nested(m, number(VT_I4, LONG{1}), 17); }, true},
      {"reference to nowhere behind references", [](M& m) { return nested(m, reference(VT_I4, nullptr), 3); }, true},
      {"variant that refers to itself", [](M& m) { return ring(m, 1); }, true},
      {"references in a ring", [](M& m) { return ring(m, 5); }, true},
      // Arrays.
      {"no array", [](M&) { return array(nullptr); }},
      {"array without elements", [](M& m) { return array(m.array(VT_VARIANT, 5, 0)); }},
      {"array without data", array_without_data},
      {"array from the lowest index", [](M& m) { return array(m.array(VT_VARIANT, kLowest, 3)); }},
      {"array to the highest index", [](M& m) { return array(m.array(VT_VARIANT, kHighest - 2, 3)); }},
      {"array beyond the highest index", [](M& m) { return array(m.array(VT_VARIANT, kHighest, 3)); }},
      {"array of two dimensions",
       [](M& m) {
         return array(m.array(VT_VARIANT, {{2, 0}, {2, 0}}));
       }},
      {"array of six dimensions",
       [](M& m) {
         return array(m.array(VT_I4, {{1, kLowest}, {2, 0}, {1, kHighest}, {1, -1}, {2, 1}, {1, 0}}), VT_I4);
       }},
      {"array of texts", [](M& m) { return array(m.array(VT_BSTR, 0, 4), VT_BSTR); }},
      {"array of bytes", [](M& m) { return array(m.array(VT_UI1, 0, 5), VT_UI1); }},
      {"array of decimals", [](M& m) { return array(m.array(VT_DECIMAL, 1, 2), VT_DECIMAL); }},
      {"array of objects", [](M& m) { return array(m.array(VT_DISPATCH, 0, 2), VT_DISPATCH); }},
      {"array that says another type", [](M& m) { return array(m.array(VT_I4, 0, 3), VT_BSTR); }},
      {"array of hostile items", array_of_hostile_items},
      {"array that holds itself", array_of_itself},
      {"locked array", [](M& m) { return locked_array(m, VT_VARIANT); }},
      {"locked array of texts", [](M& m) { return locked_array(m, VT_BSTR); }},
      {"reference to a locked array",
       [](M& m) {
         VARIANT& held = m.variant();
         held = locked_array(m, VT_VARIANT);
         return reference(VT_VARIANT, &held);
       }},
      {"reference to an array", [](M& m) { return reference(VT_ARRAY | VT_VARIANT, &m.array(VT_VARIANT, 0, 2)); }},
      {"reference to an array that holds itself", [](M& m) { return nested(m, array_of_itself(m), 2); }},
  };
  return rows;
}

}  // namespace qvr::tests
