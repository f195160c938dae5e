#include "support/ado/com/variants.h"

#include <new>
#include <type_traits>

namespace qvr::tests::com {
namespace {

[[noreturn]] void fail_type() { throw DispatchFailure{DISP_E_TYPEMISMATCH}; }

void require(HRESULT result) {
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  if (FAILED(result)) throw DispatchFailure{result == DISP_E_OVERFLOW ? result : DISP_E_TYPEMISMATCH};
}

Value converted(const VARIANT& from, VARTYPE type) {
  OwnedVariant to;
  convert(from, type, to);
  return to_value(to);
}

struct Writer {
  VARIANT& to;

  void operator()(Empty) const { to.vt = VT_EMPTY; }
  void operator()(Null) const { to.vt = VT_NULL; }
  void operator()(Missing) const {
    to.vt = VT_ERROR;
    to.scode = DISP_E_PARAMNOTFOUND;
  }
  void operator()(bool held) const {
    to.vt = VT_BOOL;
    to.boolVal = held ? VARIANT_TRUE : VARIANT_FALSE;
  }
  void operator()(std::uint8_t held) const {
    to.vt = VT_UI1;
    to.bVal = held;
  }
  void operator()(std::int16_t held) const {
    to.vt = VT_I2;
    to.iVal = held;
  }
  void operator()(std::int32_t held) const {
    to.vt = VT_I4;
    to.lVal = held;
  }
  void operator()(std::int64_t held) const {
    to.vt = VT_I8;
    to.llVal = held;
  }
  void operator()(float held) const {
    to.vt = VT_R4;
    to.fltVal = held;
  }
  void operator()(double held) const {
    to.vt = VT_R8;
    to.dblVal = held;
  }
  void operator()(Currency held) const {
    to.vt = VT_CY;
    to.cyVal.int64 = held.scaled;
  }
  void operator()(const Decimal& held) const {
    to.decVal.Hi32 = held.high;
    to.decVal.Mid32 = held.mid;
    to.decVal.Lo32 = held.low;
    to.decVal.scale = held.scale;
    to.decVal.sign = held.negative ? DECIMAL_NEG : BYTE{0};
    to.vt = VT_DECIMAL;  // last: DECIMAL overlays vt
  }
  void operator()(Date held) const {
    to.vt = VT_DATE;
    to.date = held.days;
  }
  void operator()(const Text& held) const {
    to.bstrVal = to_bstr(held);
    to.vt = VT_BSTR;
  }
  template <class T>
  void operator()(const T&) const {
    fail_type();  // no database value arrives as anything else
  }
};

class LockedArray {
 public:
  explicit LockedArray(SAFEARRAY* array) : array_(array) { require(SafeArrayLock(array)); }
  ~LockedArray() { SafeArrayUnlock(array_); }
  LockedArray(const LockedArray&) = delete;
  LockedArray& operator=(const LockedArray&) = delete;
  const VARIANT* items() const { return static_cast<const VARIANT*>(array_->pvData); }

 private:
  SAFEARRAY* array_;
};

}  // namespace

BSTR to_bstr(TextView text) {
  const auto* units = reinterpret_cast<const OLECHAR*>(text.data());
  BSTR made = SysAllocStringLen(units, static_cast<UINT>(text.size()));
  if (made == nullptr) throw std::bad_alloc();
  return made;
}

void follow(const VARIANT& from, OwnedVariant& to) {
  const VARIANT* source = &from;
  while (source->vt == (VT_BYREF | VT_VARIANT) && source->pvarVal != nullptr) source = source->pvarVal;
  require(VariantCopyInd(&to, const_cast<VARIANT*>(source)));  // reads only, whatever its declaration says
}

void convert(const VARIANT& from, VARTYPE type, OwnedVariant& to) {
  if (from.vt == type) return follow(from, to);
  OwnedVariant direct;
  follow(from, direct);
  require(VariantChangeType(&to, &direct, 0, type));
}

Value to_value(const VARIANT& from) {
  OwnedVariant direct;
  follow(from, direct);
  switch (direct.vt) {
    case VT_EMPTY: return Empty{};
    case VT_NULL: return Null{};
    case VT_BOOL: return direct.boolVal != VARIANT_FALSE;
    case VT_UI1: return static_cast<std::uint8_t>(direct.bVal);
    case VT_I2: return static_cast<std::int16_t>(direct.iVal);
    case VT_I4:
    case VT_INT: return static_cast<std::int32_t>(direct.lVal);
    case VT_I8: return static_cast<std::int64_t>(direct.llVal);
    case VT_R4: return direct.fltVal;
    case VT_R8: return direct.dblVal;
    case VT_CY: return Currency{direct.cyVal.int64};
    case VT_DATE: return Date{direct.date};
    case VT_BSTR: return to_text(direct.bstrVal);
    case VT_I1:
    case VT_UI2:
    case VT_UI4:
    case VT_UINT:
    case VT_UI8: return converted(direct, VT_I8);
    case VT_DECIMAL:
      return Decimal{direct.decVal.Hi32, direct.decVal.Mid32, direct.decVal.Lo32, direct.decVal.scale,
                     (direct.decVal.sign & DECIMAL_NEG) != 0};
    case VT_ERROR:
      if (direct.scode == DISP_E_PARAMNOTFOUND) return Missing{};
      fail_type();
    default: fail_type();
  }
}

std::vector<Value> to_values(const VARIANT& from) {
  OwnedVariant direct;
  follow(from, direct);
  if ((direct.vt & VT_ARRAY) == 0) return {to_value(direct)};
  if (direct.vt != (VT_ARRAY | VT_VARIANT) || SafeArrayGetDim(direct.parray) != 1) fail_type();
  const LockedArray locked(direct.parray);
  std::vector<Value> values;
  for (ULONG each = 0; each < direct.parray->rgsabound[0].cElements; ++each) {
    values.push_back(to_value(locked.items()[each]));
  }
  return values;
}

void to_variant(const Value& from, VARIANT& to) {
  VariantInit(&to);
  std::visit(Writer{to}, from.storage());
}

}  // namespace qvr::tests::com
