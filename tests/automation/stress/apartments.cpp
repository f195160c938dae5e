#include "automation/stress/apartments.h"

namespace qvr::tests {
namespace {

struct Handover {
  COINIT apartment;
  IStream* stream;
  const IID& id;
  const std::function<void(IUnknown&)>& use;
  HRESULT result = E_FAIL;
};

DWORD WINAPI receive(void* parameter) {
  Handover& handover = *static_cast<Handover*>(parameter);
  handover.result = CoInitializeEx(nullptr, handover.apartment);
  if (FAILED(handover.result)) return 0;
  {
    ComPtr<IUnknown> proxy;
    handover.result = CoGetInterfaceAndReleaseStream(handover.stream, handover.id, reinterpret_cast<void**>(&proxy));
    if (SUCCEEDED(handover.result)) handover.use(*proxy.Get());
  }
  CoUninitialize();
  return 0;
}

// Calls from another apartment arrive as messages.
void serve_until_end_of(HANDLE thread) {
  while (MsgWaitForMultipleObjects(1, &thread, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }
}

}  // namespace

HRESULT hand_over(COINIT apartment, IUnknown& object, REFIID id, const std::function<void(IUnknown&)>& use) {
  IStream* stream = nullptr;
  const HRESULT given = CoMarshalInterThreadInterfaceInStream(id, &object, &stream);
  if (FAILED(given)) return given;
  Handover handover{apartment, stream, id, use};
  const HANDLE thread = CreateThread(nullptr, 0, receive, &handover, 0, nullptr);
  serve_until_end_of(thread);
  CloseHandle(thread);
  return handover.result;
}

}  // namespace qvr::tests
