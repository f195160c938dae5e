#include "automation/stress/apartments.h"

namespace qvr::tests {
namespace {

struct Visit {
  COINIT apartment;
  const std::function<void()>& body;
  HRESULT result = E_FAIL;
};

DWORD WINAPI visit(void* parameter) {
  Visit& given = *static_cast<Visit*>(parameter);
  given.result = CoInitializeEx(nullptr, given.apartment);
  if (FAILED(given.result)) return 0;
  given.body();
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

HRESULT run_in(COINIT apartment, const std::function<void()>& body) {
  Visit given{apartment, body};
  const HANDLE thread = CreateThread(nullptr, 0, visit, &given, 0, nullptr);
  serve_until_end_of(thread);
  CloseHandle(thread);
  return given.result;
}

HRESULT hand_over(COINIT apartment, IUnknown& object, REFIID id, const std::function<void(IUnknown&)>& use) {
  IStream* stream = nullptr;
  HRESULT handed = CoMarshalInterThreadInterfaceInStream(id, &object, &stream);
  if (FAILED(handed)) return handed;
  const HRESULT visited = run_in(apartment, [&] {
    ComPtr<IUnknown> proxy;
    handed = CoGetInterfaceAndReleaseStream(stream, id, reinterpret_cast<void**>(&proxy));
    if (SUCCEEDED(handed)) use(*proxy.Get());
  });
  return FAILED(visited) ? visited : handed;
}

}  // namespace qvr::tests
