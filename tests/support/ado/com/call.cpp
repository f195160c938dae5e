#include "support/ado/com/call.h"

namespace qvr::tests::com {

bool Call::given(unsigned index) const {
  if (index >= count()) return false;
  OwnedVariant direct;
  follow(raw(index), direct);
  return direct.vt != VT_ERROR || direct.scode != DISP_E_PARAMNOTFOUND;
}

Text Call::text(unsigned index) const {
  OwnedVariant converted;
  convert(raw(index), VT_BSTR, converted);
  return to_text(converted.bstrVal);
}

std::int32_t Call::integer(unsigned index) const {
  OwnedVariant converted;
  convert(raw(index), VT_I4, converted);
  return static_cast<std::int32_t>(converted.lVal);
}

bool Call::truth(unsigned index) const {
  OwnedVariant converted;
  convert(raw(index), VT_BOOL, converted);
  return converted.boolVal != VARIANT_FALSE;
}

void Call::hand_out(unsigned index, std::int32_t number) const {
  if (index >= count()) return;
  const VARIANT& argument = raw(index);
  if (argument.vt == (VT_BYREF | VT_I4)) {
    *argument.plVal = number;
  } else if (argument.vt == (VT_BYREF | VT_VARIANT)) {
    VariantClear(argument.pvarVal);
    argument.pvarVal->vt = VT_I4;
    argument.pvarVal->lVal = number;
  }
}

void Call::answer(const Value& value) const {
  if (result_ != nullptr) to_variant(value, *result_);
}

void Call::answer(IDispatch* object) const {
  if (result_ == nullptr) return;
  if (object != nullptr) object->AddRef();
  result_->vt = VT_DISPATCH;
  result_->pdispVal = object;
}

void Call::answer(IUnknown* object) const {
  if (result_ == nullptr) return;
  object->AddRef();
  result_->vt = VT_UNKNOWN;
  result_->punkVal = object;
}

}  // namespace qvr::tests::com
