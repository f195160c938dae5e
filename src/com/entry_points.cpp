// The exported functions of the DLL.

#include "com/answer.h"
#include "com/class_object.h"
#include "com/module.h"
#include "com/registration.h"
#include "platform/windows/debugger_trace.h"
#include "session/thread_state.h"

namespace {

using namespace qvr;
using namespace qvr::com;

// Whether the host has left as many slots of thread-local storage as the library takes.
bool slots_are_left() {
  constexpr std::size_t kSlots = 4;  // ours (ThreadPointer) and one of the run-time
  DWORD slots[kSlots];
  std::size_t taken = 0;
  while (taken < kSlots && (slots[taken] = TlsAlloc()) != TLS_OUT_OF_INDEXES) ++taken;
  for (std::size_t i = 0; i < taken; ++i) TlsFree(slots[i]);
  return taken == kSlots;
}

}  // namespace

// The file's entry point. Without a slot the compiler's run-time ends the process before DllMain is called; so it is
// not even begun then, and LoadLibrary fails.
extern "C" BOOL WINAPI DllMainCRTStartup(HINSTANCE, DWORD, LPVOID);
extern "C" BOOL WINAPI library_entry(HINSTANCE module, DWORD reason, LPVOID reserved) {
  static bool begun = false;
  if (reason == DLL_PROCESS_ATTACH) begun = slots_are_left();
  return begun ? DllMainCRTStartup(module, reason, reserved) : FALSE;
}

// Only thread detach cleans up. At process exit the memory is reclaimed anyway, and the modules that a state refers to
// may be unloaded already. FreeLibrary unloads only a library that was not pinned, which never created an object: no
// thread has a state then.
BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) {
    keep_loaded();
    set_trace_sink(windows::trace_to_debugger);
  }
  if (reason == DLL_THREAD_DETACH) {
    const ThreadDetach detaching;
    exchange_thread_state(nullptr);
  }
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID id, REFIID interface_id, void** found) {
  return class_object(id, interface_id, found);
}

// Tells whether objects are alive. COM then calls FreeLibrary, which does not unload the library since it is pinned.
STDAPI DllCanUnloadNow() { return ModuleLock::any() ? S_FALSE : S_OK; }

STDAPI DllRegisterServer() { return register_library(Scope::Machine); }

STDAPI DllUnregisterServer() { return unregister_library(Scope::Machine); }

// regsvr32 /n /i:user registers for the current user; without a text for the machine.
STDAPI DllInstall(BOOL install, LPCWSTR command) {
  const bool user = command != nullptr && lstrcmpiW(command, L"user") == 0;
  if (!user && command != nullptr && *command != L'\0') return E_INVALIDARG;
  const Scope scope = user ? Scope::User : Scope::Machine;
  return install ? register_library(scope) : unregister_library(scope);
}
