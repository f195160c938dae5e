#include "com/variant.h"

#include <algorithm>
#include <new>
#include <vector>

#include "base/failure.h"
#include "com/text_bstr.h"

namespace qvr::com {
namespace {

Decimal decimal_from(const DECIMAL& number) {
  return {number.Hi32, number.Mid32, number.Lo32, number.scale, (number.sign & DECIMAL_NEG) != 0};
}

constexpr int kDeepest = 16;  // maximal depth of nested arrays and references

// The chain of arrays that are being read.
struct Reading {
  const SAFEARRAY* array;
  const Reading* outer;
  int depth;
};

// An array that contains itself would recurse infinitely.
bool never_ends(const SAFEARRAY* array, const Reading* outer) {
  if (outer != nullptr && outer->depth >= kDeepest) return true;
  for (; outer != nullptr; outer = outer->outer) {
    if (outer->array == array) return true;
  }
  return false;
}

// SafeArrayLock while AddRef and conversions run host code, which could otherwise destroy or redimension the array.
class Locked {
 public:
  explicit Locked(SAFEARRAY* array) noexcept : array_(SUCCEEDED(SafeArrayLock(array)) ? array : nullptr) {}
  ~Locked() {
    if (array_ != nullptr) SafeArrayUnlock(array_);
  }
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;

 private:
  SAFEARRAY* array_;
};

// How scalars and arrays are read: for the core, or to be given back.
struct Reader {
  Value (*scalar)(const VARIANT& scalar);
  Value (*array)(SAFEARRAY* array, VARTYPE told, const Reading* outer);
};

Value value_inside(const VARIANT& variant, const Reading* outer, const Reader& reader);
Value scalar_from(const VARIANT& v);
Value array_from(SAFEARRAY* array, VARTYPE type, const Reading* outer);
Value travelling_scalar(const VARIANT& v);
Value travelling_array(SAFEARRAY* array, VARTYPE told, const Reading* outer);

constexpr Reader kForTheCore{scalar_from, array_from};
constexpr Reader kTravelling{travelling_scalar, travelling_array};

HRESULT get_element(SAFEARRAY* array, LONG index, void* target) noexcept {
  const HostFloatingPoint host;  // AddRef of the host's object
  return SafeArrayGetElement(array, &index, target);
}

// Copies an element into a variant of the element type. Not records: without their IRecordInfo they could not be
// cleared.
Value element_from(SAFEARRAY* array, VARTYPE type, LONG index, const Reading& reading) {
  if (type == VT_RECORD) return ErrorValue{DISP_E_BADVARTYPE};
  void* there = nullptr;
  if (type == VT_VARIANT && SUCCEEDED(SafeArrayPtrOfIndex(array, &index, &there))) {
    // Texts and numbers are read in place, as no host code runs meanwhile.
    const auto& variant = *static_cast<const VARIANT*>(there);
    if (variant.vt == VT_BSTR || OwnedVariant::holds_nothing(variant.vt)) return scalar_from(variant);
  }
  OwnedVariant item;
  void* target = &item->llVal;
  if (type == VT_VARIANT) target = item.get();
  if (type == VT_DECIMAL) target = &item->decVal;
  if (target == &item->llVal && SafeArrayGetElemsize(array) > sizeof(LONGLONG)) return ErrorValue{DISP_E_BADVARTYPE};
  if (FAILED(get_element(array, index, target))) throw std::bad_alloc();
  if (type != VT_VARIANT) item->vt = type;  // last: DECIMAL overlays vt
  return value_inside(*item, &reading, kForTheCore);
}

// Null for an array without dimensions and for one whose data was destroyed (SafeArrayDestroyData).
bool has_elements(SAFEARRAY* array) { return array != nullptr && array->pvData != nullptr; }

// The element type. SafeArrayAllocDescriptor does not record it: then the feature flags tell strings, objects and
// variants, and the variant's type tells the rest. VT_EMPTY where the two contradict.
VARTYPE type_of_elements(SAFEARRAY* array, VARTYPE told) {
  VARTYPE type = VT_EMPTY;
  if (SUCCEEDED(SafeArrayGetVartype(array, &type))) return type;
  constexpr std::pair<USHORT, VARTYPE> kOwned[] = {
      {FADF_BSTR, VT_BSTR}, {FADF_VARIANT, VT_VARIANT}, {FADF_DISPATCH, VT_DISPATCH}, {FADF_UNKNOWN, VT_UNKNOWN}};
  bool plain = told != VT_RECORD;
  for (const auto& [feature, owned] : kOwned) {
    if ((array->fFeatures & feature) != 0) return owned;
    plain = plain && told != owned;
  }
  return plain ? told : VARTYPE{VT_EMPTY};
}

Value array_from(SAFEARRAY* array, VARTYPE type, const Reading* outer) {
  Array result;
  LONG lower = 0, upper = -1;
  result.dimensions = array == nullptr ? std::uint16_t{0} : static_cast<std::uint16_t>(SafeArrayGetDim(array));
  if (result.dimensions != 1 || FAILED(SafeArrayGetLBound(array, 1, &lower)) ||
      FAILED(SafeArrayGetUBound(array, 1, &upper))) {
    return result;
  }
  result.lower = lower;
  type = type_of_elements(array, type);
  if (type == VT_EMPTY || (upper >= lower && !has_elements(array))) result.dimensions = 0;
  if (result.dimensions == 0) return result;
  const Locked locked(array);
  const Reading reading{array, outer, outer != nullptr ? outer->depth + 1 : 1};
  const auto count = static_cast<ULONGLONG>(LONGLONG{upper} - lower + 1);
  if (count > result.items.max_size()) throw std::bad_alloc();
  result.items.reserve(static_cast<std::size_t>(count));
  for (LONGLONG index = lower; index <= upper; ++index) {
    result.items.push_back(element_from(array, type, static_cast<LONG>(index), reading));
  }
  return result;
}

Value scalar_from(const VARIANT& v) {
  switch (v.vt) {
    case VT_EMPTY: return Empty{};
    case VT_NULL: return Null{};
    case VT_BOOL: return v.boolVal != VARIANT_FALSE;
    case VT_UI1: return v.bVal;
    case VT_I2: return v.iVal;
    case VT_I4:
    case VT_INT: return static_cast<std::int32_t>(v.lVal);
    case VT_I1: return static_cast<std::int64_t>(v.cVal);
    case VT_UI2: return static_cast<std::int64_t>(v.uiVal);
    case VT_UI4:
    case VT_UINT: return static_cast<std::int64_t>(v.ulVal);
    case VT_I8: return static_cast<std::int64_t>(v.llVal);
    case VT_UI8: return static_cast<std::uint64_t>(v.ullVal);
    case VT_R4: return v.fltVal;
    case VT_R8: return v.dblVal;
    case VT_CY: return Currency{v.cyVal.int64};
    case VT_DECIMAL: return decimal_from(v.decVal);
    case VT_DATE: return Date{v.date};
    case VT_BSTR: return text_from(v.bstrVal);
    case VT_ERROR: return v.scode == DISP_E_PARAMNOTFOUND ? Value(Missing{}) : Value(ErrorValue{v.scode});
    case VT_DISPATCH:
    case VT_UNKNOWN: return v.punkVal == nullptr ? ObjectRef() : std::make_shared<DispatchObject>(v.punkVal);
    default: return ErrorValue{DISP_E_BADVARTYPE};
  }
}

Value travelling_scalar(const VARIANT& v) {
  switch (v.vt) {
    case VT_I1: return static_cast<std::int16_t>(v.cVal);
    case VT_UI2: return static_cast<std::int32_t>(v.uiVal);
    case VT_UI4:
    case VT_UINT: return static_cast<double>(v.ulVal);
    default: return scalar_from(v);
  }
}

SAFEARRAY* new_array_of_variants(SAFEARRAY* shape) {
  // The array has its bounds from the last dimension to the first.
  std::vector<SAFEARRAYBOUND> bounds(shape->rgsabound, shape->rgsabound + SafeArrayGetDim(shape));
  std::ranges::reverse(bounds);
  SAFEARRAY* const made = SafeArrayCreate(VT_VARIANT, static_cast<UINT>(bounds.size()), bounds.data());
  if (made == nullptr) throw std::bad_alloc();
  return made;
}

// One by one: what the host's variants refer to may be gone when they are given back.
void copy_variants(SAFEARRAY* from, SAFEARRAY* to, const Reading* outer) {
  const Locked locked(from);
  const Reading reading{from, outer, outer != nullptr ? outer->depth + 1 : 1};
  std::size_t count = 1;
  for (UINT dimension = 0; dimension < SafeArrayGetDim(from); ++dimension) {
    count *= from->rgsabound[dimension].cElements;
  }
  const auto* source = static_cast<const VARIANT*>(from->pvData);
  auto* target = static_cast<VARIANT*>(to->pvData);
  for (std::size_t i = 0; i < count; ++i) put_value(target[i], value_inside(source[i], &reading, kTravelling));
}

// What cannot be copied is read as it is for the core.
Value travelling_array(SAFEARRAY* array, VARTYPE told, const Reading* outer) {
  const VARTYPE type = has_elements(array) && SafeArrayGetDim(array) > 0 ? type_of_elements(array, told)
                                                                         : VARTYPE{VT_EMPTY};
  const auto copied = std::make_shared<TravellingArray>();
  SAFEARRAY* copy = nullptr;
  if (type == VT_VARIANT && SafeArrayGetElemsize(array) == sizeof(VARIANT)) {
    copy = new_array_of_variants(array);
  } else if (type != VT_EMPTY && type != VT_RECORD && type != VT_VARIANT) {
    const HostFloatingPoint host;  // AddRef of the host's objects
    if (SafeArrayCopy(array, &copy) == E_OUTOFMEMORY) throw std::bad_alloc();
  }
  if (copy == nullptr) return array_from(array, told, outer);
  copied->array->vt = static_cast<VARTYPE>(VT_ARRAY | type), copied->array->parray = copy;
  if (type == VT_VARIANT) copy_variants(array, copy, outer);
  return ObjectRef(copied);
}

HRESULT default_property(VARIANT& value, const VARIANT& of_object) noexcept {
  IDispatch* const object = of_object.vt & VT_BYREF ? *of_object.ppdispVal : of_object.pdispVal;
  if (object == nullptr) return DISP_E_TYPEMISMATCH;
  const HostFloatingPoint host;
  DISPPARAMS none{};
  return object->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value, nullptr,
                        nullptr);
}

SAFEARRAY* array_of(const VARIANT& variant) {
  if (!(variant.vt & VT_BYREF)) return variant.parray;
  return variant.pparray != nullptr ? *variant.pparray : nullptr;
}

[[noreturn]] void refuse_element(HRESULT result, const VARIANT& element) {
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  if (element.vt == VT_NULL) throw RuntimeFailure(failure_number::kInvalidNull);
  throw RuntimeFailure(result == DISP_E_OVERFLOW ? failure_number::kOverflow : failure_number::kTypeMismatch);
}

// The value as an element of this type.
void make_element(OwnedVariant& element, VARTYPE type, const Value& value) {
  if (type == VT_VARIANT) return put_value(*element.get(), value);
  OwnedVariant held;
  put_value(*held.get(), value);
  const HRESULT converted = convert_content(*element.get(), *held, type, LOCALE_USER_DEFAULT);
  if (FAILED(converted)) refuse_element(converted, *held);
}

void put_element(SAFEARRAY* array, VARTYPE type, LONG index, OwnedVariant& element) {
  // SafeArrayPutElement takes strings and objects as the pointer itself, everything else by address.
  const bool pointer = type == VT_BSTR || type == VT_DISPATCH || type == VT_UNKNOWN;
  void* content = pointer ? static_cast<void*>(element->byref) : &element->llVal;
  if (type == VT_DECIMAL) content = &element->decVal;
  if (type == VT_VARIANT) content = element.get();
  const HostFloatingPoint host;  // Release of the host's old object
  if (SafeArrayPutElement(array, &index, content) == E_OUTOFMEMORY) throw std::bad_alloc();
}

Value value_inside(const VARIANT& variant, const Reading* outer, const Reader& reader) {
  const VARIANT* inner = innermost(variant);
  if (inner == nullptr) return ErrorValue{DISP_E_BADVARTYPE};
  if (inner->vt & VT_ARRAY) {
    SAFEARRAY* array = array_of(*inner);
    if (never_ends(array, outer)) return ErrorValue{DISP_E_BADVARTYPE};
    return reader.array(array, inner->vt & VT_TYPEMASK, outer);
  }
  if (!(inner->vt & VT_BYREF)) return reader.scalar(*inner);
  OwnedVariant copy;
  if (inner->byref == nullptr || FAILED(copy_content(*copy.get(), *inner))) return ErrorValue{DISP_E_BADVARTYPE};
  return reader.scalar(*copy);
}

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
    v.vt = VT_DECIMAL;  // last: DECIMAL overlays vt
  }
  void operator()(const Text& held) const {
    v.bstrVal = new_bstr(held);
    if (v.bstrVal == nullptr) throw std::bad_alloc();
    v.vt = VT_BSTR;
  }
  void operator()(const ObjectRef& held) const {
    if (const auto* array = dynamic_cast<const TravellingArray*>(held.get())) {
      if (FAILED(copy_content(v, *array->array))) throw std::bad_alloc();
      return;
    }
    v.vt = VT_DISPATCH, v.pdispVal = nullptr;
    const auto* object = dynamic_cast<const DispatchObject*>(held.get());
    if (object == nullptr) return;
    if (SUCCEEDED(object->object.As(&v.pdispVal))) return;
    v.vt = VT_UNKNOWN, v.punkVal = HostPtr<IUnknown>(object->object).Detach();
  }
  void operator()(const Array& held) const {
    // Bytes as VT_UI1 arrays, the only form in which ADO takes binary data.
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
      const HostFloatingPoint host;  // AddRef of the host's object
      if (FAILED(SafeArrayPutElement(array, &index, content))) throw std::bad_alloc();
      ++index;
    }
  }
};

}  // namespace

HRESULT convert_content(VARIANT& to, const VARIANT& from, VARTYPE type, LCID locale) noexcept {
  const auto convert = [&](const VARIANT& source) {
    return VariantChangeTypeEx(&to, const_cast<VARIANT*>(&source), locale, VARIANT_ALPHABOOL, type);
  };
  const bool to_object = type == VT_DISPATCH || type == VT_UNKNOWN;
  if ((from.vt & ~VT_BYREF) != VT_DISPATCH || to_object) return convert(from);
  // Fetched first: the object's code needs the host's floating-point state, the conversion behind it the default one.
  OwnedVariant value;
  const HRESULT asked = default_property(*value.get(), from);
  return SUCCEEDED(asked) ? convert(*value) : asked;
}

const VARIANT* innermost(const VARIANT& variant) noexcept {
  const VARIANT* at = &variant;
  for (int depth = 0; at != nullptr && at->vt == (VT_BYREF | VT_VARIANT); ++depth) {
    at = depth < kDeepest ? at->pvarVal : nullptr;
  }
  return at;
}

Value value_from(const VARIANT& variant) { return value_inside(variant, nullptr, kForTheCore); }

Value travelling_value_from(const VARIANT& variant) { return value_inside(variant, nullptr, kTravelling); }

void put_value(VARIANT& variant, const Value& value) { std::visit(Put{variant}, value.storage()); }

void put_elements(VARIANT& variant, const Value& value) {
  const VARIANT* inner = innermost(variant);
  const Array* list = value.as<Array>();
  if (inner == nullptr || !(inner->vt & VT_ARRAY) || list == nullptr) return;
  SAFEARRAY* array = array_of(*inner);
  if (!has_elements(array) || SafeArrayGetDim(array) != 1) return;
  const VARTYPE type = type_of_elements(array, inner->vt & VT_TYPEMASK);
  if (type == VT_EMPTY) return;
  if (array->rgsabound[0].lLbound != list->lower || array->rgsabound[0].cElements != list->items.size()) return;
  const Locked locked(array);
  // All are converted before the first is put.
  std::vector<OwnedVariant> elements(list->items.size());
  for (std::size_t i = 0; i < elements.size(); ++i) make_element(elements[i], type, list->items[i]);
  LONG index = list->lower;
  for (OwnedVariant& element : elements) put_element(array, type, index++, element);
}

void OwnedVariant::let_go() noexcept {
  if (held_.vt == VT_BSTR) return free_wiped(held_.bstrVal);
  const HostFloatingPoint host;
  VariantClear(&held_);
}

}  // namespace qvr::com
