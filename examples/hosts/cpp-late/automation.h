// Late-bound automation for hosts.cpp: classes by their names, members by theirs. Nothing here knows the library.
#pragma once

#include <windows.h>

#include <comdef.h>
#include <ocidl.h>
#include <wrl/client.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

using Microsoft::WRL::ComPtr;

inline void check(HRESULT result) {
  if (FAILED(result)) throw _com_error(result);
}

class Object {
 public:
  explicit Object(const wchar_t* program_id) {
    CLSID id;
    check(CLSIDFromProgID(program_id, &id));
    check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                           reinterpret_cast<void**>(dispatch_.GetAddressOf())));
  }

  // Calls a method or reads a property; the object knows which of them it is.
  _variant_t call(const wchar_t* member, std::initializer_list<_variant_t> arguments = {}) const {
    LPOLESTR name = const_cast<LPOLESTR>(member);
    DISPID id = 0;
    check(dispatch_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id));
    // The last argument comes first. A _variant_t is a VARIANT with an owner and nothing else.
    std::vector<_variant_t> reversed(std::rbegin(arguments), std::rend(arguments));
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    _variant_t answer;
    check(dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters,
                            &answer, nullptr, nullptr));
    return answer;
  }
  std::wstring text(const wchar_t* member, std::initializer_list<_variant_t> arguments = {}) const {
    const _bstr_t answer(call(member, arguments));
    return {answer, answer.length()};
  }
  bool truth(const wchar_t* member, std::initializer_list<_variant_t> arguments = {}) const {
    return static_cast<bool>(call(member, arguments));
  }
  IDispatch* dispatch() const { return dispatch_.Get(); }

 private:
  ComPtr<IDispatch> dispatch_;
};

// A list as scripts have them: an array from 0 of variants.
inline _variant_t list(std::initializer_list<const wchar_t*> texts) {
  SAFEARRAY* const array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(texts.size()));
  if (array == nullptr) throw _com_error(E_OUTOFMEMORY);
  _variant_t owner;
  owner.vt = VT_ARRAY | VT_VARIANT;
  owner.parray = array;
  LONG index = 0;
  for (const wchar_t* text : texts) {
    _variant_t item(text);
    check(SafeArrayPutElement(array, &index, &item));
    ++index;
  }
  return owner;
}

// Hears the events of an object: their number and their one argument.
class Sink final : public IDispatch {
 public:
  using Handler = std::function<void(DISPID event, const _variant_t& argument)>;
  explicit Sink(Handler handler) : handler_(std::move(handler)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) noexcept override {
    const bool known = id == IID_IUnknown || id == IID_IDispatch;
    *found = known ? this : nullptr;
    return known ? (AddRef(), S_OK) : E_NOINTERFACE;
  }
  // It lives on the stack of the thread that listens, longer than any reference to it.
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override { return *count = 0, S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                   UINT*) noexcept override {
    try {
      _variant_t argument;  // the event passes it by reference
      if (parameters->cArgs == 1) check(VariantCopyInd(&argument, parameters->rgvarg));
      return handler_(event, argument), S_OK;
    } catch (...) {
      return E_FAIL;
    }
  }

 private:
  Handler handler_;
};

// Listens to the events that the object says are its own, until the end of its life.
class Subscription {
 public:
  Subscription(const Object& object, Sink& sink) {
    ComPtr<IProvideClassInfo2> information;
    ComPtr<IConnectionPointContainer> container;
    GUID events;
    check(object.dispatch()->QueryInterface(IID_IProvideClassInfo2,
                                            reinterpret_cast<void**>(information.GetAddressOf())));
    check(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events));
    check(object.dispatch()->QueryInterface(IID_IConnectionPointContainer,
                                            reinterpret_cast<void**>(container.GetAddressOf())));
    check(container->FindConnectionPoint(events, point_.GetAddressOf()));
    check(point_->Advise(&sink, &cookie_));
  }
  ~Subscription() { point_->Unadvise(cookie_); }
  Subscription(const Subscription&) = delete;
  Subscription& operator=(const Subscription&) = delete;

 private:
  ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};
