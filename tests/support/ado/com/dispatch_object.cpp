#include "support/ado/com/dispatch_object.h"

#include <algorithm>
#include <new>

#include "base/failure.h"

namespace qvr::tests::com {
namespace {

bool accepts(Kind kind, WORD flags) {
  const WORD puts = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
  // Scripting hosts do not tell a method from a property with arguments.
  const WORD calls = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  return (flags & (kind == Kind::Put ? puts : calls)) != 0;
}

bool names_arguments(const DISPPARAMS& arguments) {
  const bool only_the_value = arguments.cNamedArgs == 1 && arguments.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
  return arguments.cNamedArgs != 0 && !only_the_value;
}

void describe(const FailureDetail& detail, EXCEPINFO* exception) {
  if (exception == nullptr) return;
  *exception = EXCEPINFO{};
  exception->scode = detail.number;
  exception->bstrSource = to_bstr(detail.source);
  exception->bstrDescription = to_bstr(detail.description);
}

}  // namespace

HRESULT DispatchObject::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (id == kOwnObject) {
    *object = this;
  } else if (id == IID_IUnknown || id == IID_IDispatch || implements(id)) {
    *object = static_cast<IDispatch*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG DispatchObject::AddRef() { return ++references_; }

ULONG DispatchObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT DispatchObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT DispatchObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info != nullptr) *info = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT DispatchObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  std::fill_n(ids, count, DISPID_UNKNOWN);
  const TextView name = reinterpret_cast<const char16_t*>(names[0]);
  const Members& all = members();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const Member& each) { return equal_no_case(each.name, name); });
  if (found == all.end()) return DISP_E_UNKNOWNNAME;
  ids[0] = found->id;
  return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;  // arguments have no names here
}

void DispatchObject::call(DISPID id, WORD flags, const DISPPARAMS& arguments, VARIANT* result) {
  const Members& all = members();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const Member& each) { return each.id == id && accepts(each.kind, flags); });
  if (found == all.end()) throw DispatchFailure{DISP_E_MEMBERNOTFOUND};
  if (names_arguments(arguments)) throw DispatchFailure{DISP_E_NONAMEDARGS};
  if (arguments.cArgs < found->required || arguments.cArgs > found->most) {
    throw DispatchFailure{DISP_E_BADPARAMCOUNT};
  }
  Call call(arguments, result);
  found->body(*this, call);
}

HRESULT DispatchObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                               EXCEPINFO* exception, UINT* argument_error) {
  if (argument_error != nullptr) *argument_error = 0;
  if (arguments == nullptr) return E_POINTER;
  if (result != nullptr) VariantInit(result);
  const Ref<DispatchObject> alive(this);  // the call may drop the caller's last reference
  try {
    call(id, flags, *arguments, result);
    return S_OK;
  } catch (const DispatchFailure& failure) {
    return failure.result;
  } catch (const RuntimeFailure& failure) {
    return or_default({}, E_OUTOFMEMORY, [&] {
      describe(failure.detail(), exception);
      return DISP_E_EXCEPTION;
    });
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace qvr::tests::com
