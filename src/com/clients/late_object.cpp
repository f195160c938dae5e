#include "com/clients/late_object.h"

#include <new>

#include "com/late_failure.h"

namespace qvr::com {
namespace {

// EXCEPINFO that frees its strings.
struct Exception : EXCEPINFO {
  Exception() : EXCEPINFO{} {}
  ~Exception() {
    SysFreeString(bstrSource);
    SysFreeString(bstrDescription);
    SysFreeString(bstrHelpFile);
  }
  Exception(const Exception&) = delete;
  Exception& operator=(const Exception&) = delete;
};

[[noreturn]] void raise(Exception& exception) {
  if (exception.pfnDeferredFillIn != nullptr) {
    const HostFloatingPoint host;
    exception.pfnDeferredFillIn(&exception);
  }
  const std::int32_t number = exception.wCode != 0 ? exception.wCode : failure_number_of(exception.scode);
  throw RuntimeFailure(number, text_from(exception.bstrDescription), text_from(exception.bstrSource));
}

}  // namespace

LateObject::LateObject(HostPtr<IDispatch> object, std::shared_ptr<DispatchIds> ids)
    : object_(std::move(object)), ids_(std::move(ids)), kept_(ids_ ? ids_->of_interface(*object_.Get()) : nullptr) {}

void LateObject::put_text(VARIANT& variant, TextView text) {
  variant.bstrVal = new_bstr(text);
  if (variant.bstrVal == nullptr) throw std::bad_alloc();
  variant.vt = VT_BSTR;
}

void LateObject::invoke(const wchar_t* name, WORD flags, VARIANT* reversed, UINT count, VARIANT* result) const {
  const DISPID id = kept_ != nullptr ? kept_->id_of(*object_.Get(), name) : dispatch_id(*object_.Get(), name);
  const bool put = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  DISPID put_name = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{reversed, put ? &put_name : nullptr, count, put ? 1u : 0u};
  Exception exception;
  const HRESULT called = by_host([&] {
    return object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, &exception, nullptr);
  });
  if (called == DISP_E_EXCEPTION) raise(exception);
  require(called);
}

LateObject LateObject::object_in(const Value& value) const {
  const ObjectRef* reference = value.as<ObjectRef>();
  if (reference == nullptr) throw RuntimeFailure(failure_number::kTypeMismatch);
  const auto* held = dynamic_cast<const DispatchObject*>(reference->get());
  if (held == nullptr) throw RuntimeFailure(failure_number::kObjectNotSet);
  HostPtr<IDispatch> dispatch;
  require(held->object.As(&dispatch));
  return LateObject(std::move(dispatch), ids_);
}

}  // namespace qvr::com
