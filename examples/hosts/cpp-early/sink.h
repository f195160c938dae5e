// The events of the script runner for hosts.cpp: they come through IDispatch, by their numbers.
#pragma once

#include <windows.h>

#include <QVRlib21.h>
#include <comdef.h>
#include <wrl/client.h>

#include <functional>
#include <string>

inline void check(HRESULT result) {
  if (FAILED(result)) throw _com_error(result);
}

class Sink final : public __QVRScr {
 public:
  using Progreso = std::function<void(const std::wstring& message)>;
  using Terminado = std::function<void(VARIANT_BOOL success)>;
  Sink(Progreso progreso, Terminado terminado) : progreso_(std::move(progreso)), terminado_(std::move(terminado)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) noexcept override {
    const bool known = id == __uuidof(IUnknown) || id == __uuidof(IDispatch) || id == __uuidof(__QVRScr);
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
    if (parameters->cArgs != 1) return DISP_E_BADPARAMCOUNT;
    // As the contract declares them: the message is a text by reference, the outcome a truth value by reference.
    const VARIANT& argument = parameters->rgvarg[0];
    try {
      if (event == 1 && argument.vt == (VT_BYREF | VT_BSTR)) {
        progreso_(std::wstring(*argument.pbstrVal, SysStringLen(*argument.pbstrVal)));
      }
      if (event == 2 && argument.vt == (VT_BYREF | VT_BOOL)) terminado_(*argument.pboolVal);
      return S_OK;
    } catch (...) {
      return E_FAIL;
    }
  }

 private:
  Progreso progreso_;
  Terminado terminado_;
};

// Listens to the script runner until the end of its life.
class Subscription {
 public:
  Subscription(_QVRScr* script, Sink& sink) {
    Microsoft::WRL::ComPtr<IConnectionPointContainer> container;
    check(script->QueryInterface(__uuidof(IConnectionPointContainer),
                                 reinterpret_cast<void**>(container.GetAddressOf())));
    check(container->FindConnectionPoint(__uuidof(__QVRScr), point_.GetAddressOf()));
    check(point_->Advise(&sink, &cookie_));
  }
  ~Subscription() { point_->Unadvise(cookie_); }
  Subscription(const Subscription&) = delete;
  Subscription& operator=(const Subscription&) = delete;

 private:
  Microsoft::WRL::ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};
