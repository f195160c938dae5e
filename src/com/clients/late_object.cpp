#include "com/clients/late_object.h"

#include <new>
#include <vector>

#include "com/late_failure.h"
#include "com/text_bstr.h"

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

// Arguments in reverse order, as Invoke takes them.
class Arguments {
 public:
  explicit Arguments(std::span<const Value> values) : owned_(values.size()) {
    passed_.reserve(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
      put_value(*owned_[i].get(), values[values.size() - 1 - i]);
      passed_.push_back(*owned_[i]);
    }
  }

  explicit Arguments(std::span<const TextView> texts) : owned_(texts.size()) {
    passed_.reserve(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
      VARIANT& owned = *owned_[i].get();
      owned.bstrVal = new_bstr(texts[texts.size() - 1 - i]);
      if (owned.bstrVal == nullptr) throw std::bad_alloc();
      owned.vt = VT_BSTR;
      passed_.push_back(owned);
    }
  }

  // The last argument is the first in the list.
  void add_by_reference(OwnedBstr& text) {
    VARIANT reference;
    reference.vt = VT_BYREF | VT_BSTR;
    reference.pbstrVal = text.out();
    passed_.insert(passed_.begin(), reference);
  }

  DISPPARAMS parameters(WORD flags) {
    const bool put = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    return {passed_.data(), put ? &put_name_ : nullptr, static_cast<UINT>(passed_.size()), put ? 1u : 0u};
  }

 private:
  std::vector<OwnedVariant> owned_;
  std::vector<VARIANT> passed_;  // shallow copies in one array, for Invoke
  DISPID put_name_ = DISPID_PROPERTYPUT;
};

}  // namespace

LateObject LateObject::create(REFCLSID id) {
  HostPtr<IDispatch> object;
  const HRESULT created = by_host(
      [&] { return CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_PPV_ARGS(&object)); });
  if (FAILED(created)) throw RuntimeFailure(failure_number::kCannotCreateObject);
  return LateObject(std::move(object));
}

Value LateObject::invoke(const wchar_t* name, WORD flags, std::span<const Value> arguments) const {
  Arguments passed(arguments);
  DISPPARAMS parameters = passed.parameters(flags);
  return invoke(name, flags, parameters);
}

Value LateObject::invoke(const wchar_t* name, WORD flags, DISPPARAMS& parameters) const {
  DISPID id = DISPID_UNKNOWN;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  require(by_host([&] { return object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id); }));
  const bool wants_result = parameters.cNamedArgs == 0;
  OwnedVariant result;
  Exception exception;
  const HRESULT called = by_host([&] {
    return object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, wants_result ? result.get() : nullptr,
                           &exception, nullptr);
  });
  if (called == DISP_E_EXCEPTION) raise(exception);
  require(called);
  return value_from(*result);
}

Value LateObject::call(const wchar_t* name, std::initializer_list<Value> arguments) const {
  return invoke(name, DISPATCH_METHOD, {arguments.begin(), arguments.size()});
}

Value LateObject::call(const wchar_t* name, std::initializer_list<Value> arguments, Text& by_reference) const {
  OwnedBstr text(by_reference);
  Arguments passed(std::span<const Value>(arguments.begin(), arguments.size()));
  passed.add_by_reference(text);
  DISPPARAMS parameters = passed.parameters(DISPATCH_METHOD);
  Value result = invoke(name, DISPATCH_METHOD, parameters);
  by_reference = text.text();
  return result;
}

Value LateObject::get(const wchar_t* name, std::initializer_list<Value> arguments) const {
  return invoke(name, DISPATCH_PROPERTYGET, {arguments.begin(), arguments.size()});
}

void LateObject::put(const wchar_t* name, const Value& value) const { invoke(name, DISPATCH_PROPERTYPUT, {&value, 1}); }

Value LateObject::call_with_secrets(const wchar_t* name, std::initializer_list<TextView> arguments) const {
  Arguments passed(std::span<const TextView>(arguments.begin(), arguments.size()));
  DISPPARAMS parameters = passed.parameters(DISPATCH_METHOD);
  return invoke(name, DISPATCH_METHOD, parameters);
}

void LateObject::put_secret(const wchar_t* name, TextView text) const {
  Arguments passed(std::span<const TextView>(&text, 1));
  DISPPARAMS parameters = passed.parameters(DISPATCH_PROPERTYPUT);
  invoke(name, DISPATCH_PROPERTYPUT, parameters);
}

void LateObject::put_object(const wchar_t* name, const LateObject& object) const {
  const Value value = object.as_value();
  invoke(name, DISPATCH_PROPERTYPUTREF, {&value, 1});
}

LateObject LateObject::get_object(const wchar_t* name) const { return object_in(get(name)); }

std::optional<CLSID> registered_class(const wchar_t* program_id) {
  CLSID id;
  return SUCCEEDED(CLSIDFromProgID(program_id, &id)) ? std::optional(id) : std::nullopt;
}

LateObject object_in(const Value& value) {
  const ObjectRef* reference = value.as<ObjectRef>();
  if (reference == nullptr) throw RuntimeFailure(failure_number::kTypeMismatch);
  const auto* held = dynamic_cast<const DispatchObject*>(reference->get());
  if (held == nullptr) throw RuntimeFailure(failure_number::kObjectNotSet);
  HostPtr<IDispatch> dispatch;
  require(held->object.As(&dispatch));
  return LateObject(std::move(dispatch));
}

}  // namespace qvr::com
