// The class that the library gives the reports of failures to, in this process alone. Setup names it once:
//   reg add HKLM\Software\Classes\QVRServicios.InformeErrores\CLSID /ve /d {6E2C7B0A-51D3-4C0E-9B1A-8F24D5A3C617}
#pragma once

#include <functional>
#include <string>

#include "../../hosts/cpp-late/automation.h"

// To be offered by the thread that uses the library. The object is its own class object and lives longer than COM
// there.
class ErrorReport final : public IDispatch, public IClassFactory {
 public:
  using Handler = std::function<void(long number, const std::wstring& label)>;
  explicit ErrorReport(Handler handler) : handler_(std::move(handler)) {}
  ErrorReport(const ErrorReport&) = delete;
  ErrorReport& operator=(const ErrorReport&) = delete;

  void offer() {
    constexpr CLSID kClass = {0x6e2c7b0a, 0x51d3, 0x4c0e, {0x9b, 0x1a, 0x8f, 0x24, 0xd5, 0xa3, 0xc6, 0x17}};
    check(CoRegisterClassObject(kClass, static_cast<IClassFactory*>(this), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                &cookie_));
  }
  void withdraw() { CoRevokeClassObject(cookie_); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) noexcept override {
    *found = id == IID_IClassFactory                     ? static_cast<IClassFactory*>(this)
             : id == IID_IUnknown || id == IID_IDispatch ? static_cast<IDispatch*>(this)
                                                         : static_cast<void*>(nullptr);
    return *found != nullptr ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** found) noexcept override {
    return QueryInterface(id, found);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override { return *count = 0, S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* id) noexcept override {
    if (lstrcmpiW(names[0], L"Informar") != 0) return DISP_E_UNKNOWNNAME;
    return *id = 1, S_OK;
  }
  // Informar(Numero, Descripcion, Origen, MotorBD, Etiqueta, Textos); the last argument comes first.
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                   UINT*) noexcept override {
    if (parameters->cArgs != 6) return DISP_E_BADPARAMCOUNT;
    try {
      _variant_t number, label;
      check(VariantCopyInd(&number, &parameters->rgvarg[5]));
      check(VariantCopyInd(&label, &parameters->rgvarg[1]));
      return handler_(number, std::wstring(_bstr_t(label))), S_OK;
    } catch (...) {
      return E_FAIL;
    }
  }

 private:
  Handler handler_;
  DWORD cookie_ = 0;
};
