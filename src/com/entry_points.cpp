// What the library exports.

#include "com/answer.h"
#include "com/class_object.h"
#include "com/module.h"
#include "com/registration.h"
#include "session/thread_state.h"

namespace {

using namespace qvr;
using namespace qvr::com;

}  // namespace

// At the end of the process the memory goes anyway, and what a thread's state refers to may be gone already. A library
// that is unloaded before that has given nobody an object, so that no thread has a state.
BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
  if (reason == DLL_THREAD_DETACH) exchange_thread_state(nullptr);
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID id, REFIID interface_id, void** found) {
  return class_object(id, interface_id, found);
}

// Whether objects live. The system lets go of the library after S_OK, which stays all the same once it has been used.
STDAPI DllCanUnloadNow() { return ModuleLock::any() ? S_FALSE : S_OK; }

STDAPI DllRegisterServer() { return register_library(Scope::Machine); }

STDAPI DllUnregisterServer() { return unregister_library(Scope::Machine); }

// regsvr32 /n /i:user registers for the current user; without text it means the machine.
STDAPI DllInstall(BOOL install, LPCWSTR command) {
  const bool user = command != nullptr && lstrcmpiW(command, L"user") == 0;
  if (!user && command != nullptr && *command != L'\0') return E_INVALIDARG;
  const Scope scope = user ? Scope::User : Scope::Machine;
  return install ? register_library(scope) : unregister_library(scope);
}
