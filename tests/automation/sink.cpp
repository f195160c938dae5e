#include "automation/sink.h"

#include <gtest/gtest.h>

#include "QVRlib21.h"

namespace qvr::tests {
namespace {

std::string argument_text(const VARIANT& argument) {
  if (argument.vt == (VT_BYREF | VT_BSTR)) {
    return "BSTR* " + narrow(std::wstring(*argument.pbstrVal, SysStringLen(*argument.pbstrVal)));
  }
  if (argument.vt == (VT_BYREF | VT_BOOL)) {
    return *argument.pboolVal == VARIANT_TRUE ? "BOOL* true" : *argument.pboolVal == 0 ? "BOOL* false" : "BOOL* odd";
  }
  return "unexpected type " + std::to_string(argument.vt);
}

}  // namespace

HRESULT Sink::QueryInterface(REFIID id, void** found) noexcept {
  *found = id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(__QVRScr) ? this : nullptr;
  if (*found == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG Sink::Release() noexcept {
  const LONG left = InterlockedDecrement(&count_);
  if (left == 0) delete this;
  return static_cast<ULONG>(left);
}

HRESULT Sink::GetTypeInfoCount(UINT* count) noexcept {
  *count = 0;
  return S_OK;
}

HRESULT Sink::Invoke(DISPID event, REFIID reserved, LCID, WORD flags, DISPPARAMS* arguments, VARIANT*,
                     EXCEPINFO* exception, UINT*) noexcept {
  const std::string name = event == 1 ? "Progreso" : event == 2 ? "Terminado" : "event " + std::to_string(event);
  if (reserved != IID_NULL || flags != DISPATCH_METHOD || arguments->cArgs != 1 || arguments->cNamedArgs != 0) {
    events.push_back(name + " called in an odd way");
    return E_INVALIDARG;
  }
  events.push_back(name + " " + argument_text(arguments->rgvarg[0]));
  const HRESULT answer = reaction ? reaction(event, arguments->rgvarg[0]) : S_OK;
  if (answer == DISP_E_EXCEPTION && exception != nullptr) {
    exception->scode = E_FAIL;
    exception->bstrSource = SysAllocString(L"host");
    exception->bstrDescription = SysAllocString(L"raised inside an event");
    exception->bstrHelpFile = SysAllocString(L"host.hlp");
  }
  return answer;
}

Connected::Connected(const LateObject& source) {
  sink_.Attach(new Sink());
  const auto container = source.as<IConnectionPointContainer>();
  EXPECT_EQ(container->FindConnectionPoint(__uuidof(__QVRScr), &point_), S_OK);
  EXPECT_EQ(point_->Advise(sink_.Get(), &cookie_), S_OK);
}

Connected::~Connected() { disconnect(); }

void Connected::disconnect() {
  if (point_) point_->Unadvise(cookie_);
  point_.Reset();
}

}  // namespace qvr::tests
