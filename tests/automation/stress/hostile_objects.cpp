#include "automation/stress/hostile_values.h"

namespace qvr::tests {
namespace {

// Both live as long as the process, whoever releases them how often.
class WithoutMembers final : public IUnknown {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    *found = id == IID_IUnknown ? this : nullptr;
    return *found != nullptr ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return 2; }
  STDMETHODIMP_(ULONG) Release() noexcept override { return 1; }
};

class Failing final : public IDispatch {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override {
    *found = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    return *found != nullptr ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return 2; }
  STDMETHODIMP_(ULONG) Release() noexcept override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_UNEXPECTED; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_UNEXPECTED; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_UNEXPECTED; }
  // Whoever is told of the error has to release its text.
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO* exception,
                      UINT*) noexcept override {
    if (exception != nullptr) exception->bstrDescription = SysAllocString(L"fails whatever it is asked");
    return DISP_E_EXCEPTION;
  }
};

}  // namespace

IUnknown& object_without_members() {
  static WithoutMembers instance;
  return instance;
}

IDispatch& object_that_fails() {
  static Failing instance;
  return instance;
}

}  // namespace qvr::tests
