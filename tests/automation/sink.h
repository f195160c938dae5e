// A host's event sink: writes down what it is told, and does on the way what a test wants it to.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "automation/host.h"

namespace qvr::tests {

inline constexpr DISPID kTerminado = 2;  // the other event is Progreso

class Sink final : public IDispatch {
 public:
  using Reaction = std::function<HRESULT(DISPID event, VARIANT& argument)>;

  STDMETHODIMP QueryInterface(REFIID id, void** found) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return static_cast<ULONG>(InterlockedIncrement(&count_)); }
  STDMETHODIMP_(ULONG) Release() noexcept override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID event, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                      EXCEPINFO* exception, UINT* wrong_argument) noexcept override;

  // "Progreso BSTR* 0/2", "Terminado BOOL* true"; anything unexpected about a call is written down instead.
  std::vector<std::string> events;
  Reaction reaction;  // may answer DISP_E_EXCEPTION, which fills in an error as hosts do

 private:
  ~Sink() = default;
  volatile LONG count_ = 1;
};

// A sink connected to an object's event interface for as long as this lives.
class Connected {
 public:
  explicit Connected(const LateObject& source);
  ~Connected();
  Connected(const Connected&) = delete;
  Connected& operator=(const Connected&) = delete;
  void disconnect();

  Sink& sink() { return *sink_.Get(); }
  const std::vector<std::string>& events() const { return sink_->events; }
  DWORD cookie() const { return cookie_; }

 private:
  ComPtr<Sink> sink_;
  ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

}  // namespace qvr::tests
