// Values into variants of their types.
#include <algorithm>
#include <new>

#include "com/text_bstr.h"
#include "com/variant.h"

namespace qvr::com {
namespace {

struct Put {
  VARIANT& v;

  void operator()(const Empty&) const {}
  void operator()(const Missing&) const { v.vt = VT_ERROR, v.scode = DISP_E_PARAMNOTFOUND; }
  void operator()(const Null&) const { v.vt = VT_NULL; }
  void operator()(bool held) const { v.vt = VT_BOOL, v.boolVal = held ? VARIANT_TRUE : VARIANT_FALSE; }
  void operator()(std::uint8_t held) const { v.vt = VT_UI1, v.bVal = held; }
  void operator()(std::int16_t held) const { v.vt = VT_I2, v.iVal = held; }
  void operator()(std::int32_t held) const { v.vt = VT_I4, v.lVal = held; }
  void operator()(std::int64_t held) const { v.vt = VT_I8, v.llVal = held; }
  void operator()(std::uint64_t held) const { v.vt = VT_UI8, v.ullVal = held; }
  void operator()(float held) const { v.vt = VT_R4, v.fltVal = held; }
  void operator()(double held) const { v.vt = VT_R8, v.dblVal = held; }
  void operator()(Currency held) const { v.vt = VT_CY, v.cyVal.int64 = held.scaled; }
  void operator()(Date held) const { v.vt = VT_DATE, v.date = held.days; }
  void operator()(const ErrorValue& held) const { v.vt = VT_ERROR, v.scode = held.code; }
  void operator()(const Decimal& held) const {
    v.decVal.Hi32 = held.high, v.decVal.Mid32 = held.mid, v.decVal.Lo32 = held.low;
    v.decVal.scale = held.scale, v.decVal.sign = held.negative ? DECIMAL_NEG : BYTE{0};
    v.vt = VT_DECIMAL;  // last: it shares its place with a part of the number's structure
  }
  void operator()(const Text& held) const {
    v.bstrVal = new_bstr(held);
    if (v.bstrVal == nullptr) throw std::bad_alloc();
    v.vt = VT_BSTR;
  }
  void operator()(const ObjectRef& held) const {
    v.vt = VT_DISPATCH, v.pdispVal = nullptr;
    const auto* object = dynamic_cast<const DispatchObject*>(held.get());
    if (object == nullptr) return;
    if (SUCCEEDED(object->object.As(&v.pdispVal))) return;
    v.vt = VT_UNKNOWN, v.punkVal = HostPtr<IUnknown>(object->object).Detach();
  }
  void operator()(const Array& held) const {
    // Bytes are binary data, which ADO takes in this form only.
    const bool binary = !held.items.empty() && std::ranges::all_of(held.items, &Value::is<std::uint8_t>);
    const VARTYPE type = binary ? VT_UI1 : VT_VARIANT;
    SAFEARRAY* array = SafeArrayCreateVector(type, held.lower, static_cast<ULONG>(held.items.size()));
    if (array == nullptr) throw std::bad_alloc();
    v.vt = static_cast<VARTYPE>(VT_ARRAY | type), v.parray = array;
    LONG index = held.lower;
    for (const Value& item : held.items) {
      OwnedVariant element;
      put_value(*element.get(), item);
      void* content = binary ? static_cast<void*>(&element->bVal) : element.get();
      const HostFloatingPoint host;  // of an object, a reference is taken
      if (FAILED(SafeArrayPutElement(array, &index, content))) throw std::bad_alloc();
      ++index;
    }
  }
};

}  // namespace

void put_value(VARIANT& variant, const Value& value) { std::visit(Put{variant}, value.storage()); }

}  // namespace qvr::com
