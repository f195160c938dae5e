#include "com/argument_slot.h"

#include <cstring>

namespace qvr::com {
namespace {

bool is_missing(const VARIANT* argument) {
  return argument == nullptr || (argument->vt == VT_ERROR && argument->scode == DISP_E_PARAMNOTFOUND);
}

// Hosts distinguish overflow from a type mismatch; all other errors count as a type mismatch.
HRESULT refusal(HRESULT result) {
  return result == DISP_E_OVERFLOW || result == E_OUTOFMEMORY ? result : DISP_E_TYPEMISMATCH;
}

HRESULT take_object(VARIANT& target, const VARIANT& source) {
  OwnedVariant value;
  if (FAILED(copy_content(*value.get(), source))) return DISP_E_TYPEMISMATCH;
  target.pdispVal = nullptr;
  target.vt = VT_DISPATCH;
  if (value->vt == VT_EMPTY) return S_OK;  // an unassigned variable of a script counts as Nothing
  if (value->vt != VT_DISPATCH && value->vt != VT_UNKNOWN) return DISP_E_TYPEMISMATCH;
  if (value->punkVal == nullptr) return S_OK;
  const HostFloatingPoint host;
  return SUCCEEDED(value->punkVal->QueryInterface(IID_PPV_ARGS(&target.pdispVal))) ? S_OK : DISP_E_TYPEMISMATCH;
}

LCID usable(LCID locale) { return locale != 0 ? locale : LOCALE_USER_DEFAULT; }

std::size_t size_of(VARTYPE type) {
  switch (type) {
    case VT_I1:
    case VT_UI1: return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL: return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR: return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE: return 8;
    default: return 0;
  }
}

bool passes_on(VARTYPE type) { return type == VT_BSTR || size_of(type) > 0; }

// A value that has the type already, by value or by reference. VariantChangeType would copy it twice, and leave a copy
// of a password in freed memory.
HRESULT take_same(VARIANT& target, const VARIANT& source, VARTYPE type) {
  const void* const content = source.vt & VT_BYREF ? source.byref : &source.llVal;
  if (type == VT_BSTR) {
    const BSTR string = *static_cast<const BSTR*>(content);
    target.bstrVal = SysAllocStringByteLen(reinterpret_cast<const char*>(string), SysStringByteLen(string));
    if (target.bstrVal == nullptr) return E_OUTOFMEMORY;
  } else {
    std::memcpy(&target.llVal, content, size_of(type));
  }
  target.vt = type;
  return S_OK;
}

HRESULT take_typed(VARIANT& target, const VARIANT& source, VARTYPE type, LCID locale) {
  const auto given = static_cast<VARTYPE>(source.vt & ~VT_BYREF);
  if (given == type && passes_on(type)) return take_same(target, source, type);
  const HRESULT result = convert_content(target, source, type, locale);
  return SUCCEEDED(result) ? S_OK : refusal(result);
}

// Assigns to a typed variable of the caller and frees its old content.
void store(VARTYPE type, void* target, VARIANT& value) {
  if (type == VT_BSTR) {
    std::swap(*static_cast<BSTR*>(target), value.bstrVal);
  } else if (type == VT_DISPATCH || type == VT_UNKNOWN) {
    std::swap(*static_cast<IUnknown**>(target), value.punkVal);
  } else if (type == VT_DECIMAL) {
    const DECIMAL number = value.decVal;
    *static_cast<DECIMAL*>(target) = number;
  } else {
    std::memcpy(target, &value.llVal, size_of(type));
  }
}

}  // namespace

HRESULT ArgumentSlot::take_missing(const Parameter& parameter) noexcept {
  if (!parameter.optional) return DISP_E_PARAMNOTOPTIONAL;
  if (type_ == VT_VARIANT) {
    held_->vt = VT_ERROR;
    held_->scode = DISP_E_PARAMNOTFOUND;
    return S_OK;
  }
  VARIANT number;
  VariantInit(&number);
  if (type_ == VT_DISPATCH || type_ == VT_UNKNOWN) return take_object(*held_.get(), number);
  if (parameter.fallback) {
    number.vt = VT_I4;
    number.lVal = *parameter.fallback;
  }
  return take_typed(*held_.get(), number, type_, LOCALE_USER_DEFAULT);
}

// The caller's variable, if it can be passed on without a copy. Not if host code could free its content during the
// call: a typed variable keeps its type, but a BSTR inside a VARIANT is freed when another value is assigned. Objects
// are AddRef'ed during the call. A VARIANT is passed on with its content, also an array, which members that return
// values fill.
void* ArgumentSlot::callers_variable(const VARIANT& argument, const VARIANT& inner) const noexcept {
  if (!by_reference_ || !(argument.vt & VT_BYREF)) return nullptr;
  if (type_ != VT_VARIANT) return inner.vt == (VT_BYREF | type_) && passes_on(type_) ? inner.byref : nullptr;
  const bool of_value = inner.vt == VT_BSTR || OwnedVariant::holds_nothing(inner.vt) ||
                        (inner.vt & (VT_ARRAY | VT_BYREF)) == VT_ARRAY;
  return of_value ? const_cast<VARIANT*>(&inner) : nullptr;
}

// The bits of a by-value argument for a by-value parameter. The caller owns the BSTR until the call returns; the member
// copies it.
void* ArgumentSlot::borrowed(const VARIANT& argument) noexcept {
  const bool whole = type_ == VT_VARIANT;
  const bool of_type = whole ? argument.vt == VT_BSTR || OwnedVariant::holds_nothing(argument.vt)
                             : argument.vt == type_ && passes_on(type_);
  if (by_reference_ || !of_type) return nullptr;
  std::memcpy(&before_, &argument, sizeof argument);
  return whole ? static_cast<void*>(&before_) : &before_.llVal;
}

HRESULT ArgumentSlot::convert(const Parameter& parameter, const VARIANT* inner, LCID locale) noexcept {
  if (inner == nullptr) return take_missing(parameter);
  if (type_ == VT_DISPATCH || type_ == VT_UNKNOWN) return take_object(*held_.get(), *inner);
  if (type_ != VT_VARIANT) return take_typed(*held_.get(), *inner, type_, usable(locale));
  // An array in a typed variable is not copied either.
  if (by_reference_ && (inner->vt & VT_BYREF) && (inner->vt & VT_ARRAY)) {
    std::memcpy(held_.get(), inner, sizeof *inner);
    return S_OK;
  }
  const HRESULT copied = copy_content(*held_.get(), *inner);
  return SUCCEEDED(copied) ? S_OK : refusal(copied);
}

HRESULT ArgumentSlot::take(const Parameter& parameter, const VARIANT* argument, LCID locale) noexcept {
  type_ = parameter.type;
  by_reference_ = parameter.by_reference;
  const VARIANT* inner = argument != nullptr ? innermost(*argument) : nullptr;
  if (argument != nullptr && inner == nullptr) return DISP_E_TYPEMISMATCH;
  if (inner != nullptr && (inner->vt & VT_BYREF) && inner->byref == nullptr) return DISP_E_TYPEMISMATCH;
  if (is_missing(inner)) inner = nullptr;
  if (inner != nullptr) passed_on_ = inner == argument ? borrowed(*inner) : nullptr;
  if (inner != nullptr && passed_on_ == nullptr) passed_on_ = callers_variable(*argument, *inner);
  if (passed_on_ != nullptr) return S_OK;
  const HRESULT result = convert(parameter, inner, locale);
  if (by_reference_) std::memcpy(&before_, held_.get(), sizeof before_);
  return result;
}

ArgumentSlot::Passed ArgumentSlot::passed() noexcept {
  if (!by_reference_) return {type_, passed_on_ != nullptr ? &before_ : held_.get()};
  reference_.vt = static_cast<VARTYPE>(VT_BYREF | type_);
  reference_.byref = passed_on_;
  if (passed_on_ == nullptr) reference_.byref = type_ == VT_VARIANT ? static_cast<void*>(held_.get()) : &held_->llVal;
  return {reference_.vt, &reference_};
}

bool ArgumentSlot::changed() const noexcept { return std::memcmp(&before_, &*held_, sizeof before_) != 0; }

void ArgumentSlot::give_back(VARIANT& argument, LCID locale) noexcept {
  if (passed_on_ != nullptr || !by_reference_ || !(argument.vt & VT_BYREF) || !changed()) return;
  VARIANT* target = const_cast<VARIANT*>(innermost(argument));
  if (target == &argument || (target->vt & VT_BYREF)) {
    const auto type = static_cast<VARTYPE>(target->vt & ~VT_BYREF);
    OwnedVariant converted;
    // If the new value does not convert to the variable's type, the variable stays unchanged.
    if (SUCCEEDED(take_typed(*converted.get(), *held_, type, usable(locale))))
      store(type, target->byref, *converted.get());
    return;
  }
  const HostFloatingPoint host;
  VariantCopy(target, held_.get());
}

}  // namespace qvr::com
