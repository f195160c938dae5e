#include "other_thread.h"

#include "late.h"

#include "QVRlib21.h"

namespace registration_free {
namespace {

struct Call {
  ComPtr<IStream> passed;
  HRESULT result = E_FAIL;
  Value name;
};

// What COM has to know of the interface here, so that it can make a proxy, stands in the manifest as well.
void ask(Call& call) {
  ComPtr<_cSQL20> query;
  call.result = CoGetInterfaceAndReleaseStream(call.passed.Detach(), __uuidof(_cSQL20),
                                               reinterpret_cast<void**>(query.GetAddressOf()));
  if (SUCCEEDED(call.result)) call.result = query->get_Name(call.name.out_text());
}

DWORD WINAPI other_thread(void* parameter) {
  auto& call = *static_cast<Call*>(parameter);
  call.result = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  if (FAILED(call.result)) return 0;
  ask(call);
  CoUninitialize();
  return 0;
}

}  // namespace

std::wstring name_from_another_thread(_cSQL20* query) {
  Call call;
  require(CoMarshalInterThreadInterfaceInStream(__uuidof(_cSQL20), query, call.passed.GetAddressOf()),
          L"CoMarshalInterThreadInterfaceInStream");
  HANDLE thread = CreateThread(nullptr, 0, other_thread, &call, 0, nullptr);
  if (thread == nullptr) require(HRESULT_FROM_WIN32(GetLastError()), L"CreateThread");
  // Waits as an apartment must: calls from other threads come in meanwhile.
  DWORD index = 0;
  const HRESULT waited = CoWaitForMultipleHandles(0, INFINITE, 1, &thread, &index);
  CloseHandle(thread);
  require(waited, L"CoWaitForMultipleHandles");
  require(call.result, L"_cSQL20 from another thread");
  return call.name.text();
}

}  // namespace registration_free
