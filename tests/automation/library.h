// The library file and the test ADO, loaded and registered for the whole test run.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>
#include <objbase.h>

#include <string>

namespace qvr::tests {

// A DLL with the entry points of an in-process server.
class InProcessServer {
 public:
  explicit InProcessServer(const std::wstring& path);
  ~InProcessServer();
  InProcessServer(const InProcessServer&) = delete;
  InProcessServer& operator=(const InProcessServer&) = delete;

  HRESULT register_it() const { return entry<HRESULT()>("DllRegisterServer")(); }
  HRESULT unregister_it() const { return entry<HRESULT()>("DllUnregisterServer")(); }
  HRESULT install(bool install, const wchar_t* command) const {
    return entry<HRESULT(BOOL, LPCWSTR)>("DllInstall")(install, command);
  }
  HRESULT can_unload() const { return entry<HRESULT()>("DllCanUnloadNow")(); }
  HRESULT class_object(REFCLSID id, REFIID interface_id, void** found) const {
    return entry<HRESULT(REFCLSID, REFIID, void**)>("DllGetClassObject")(id, interface_id, found);
  }
  bool loaded() const { return module_ != nullptr; }

 private:
  template <class F>
  struct Pointer;
  template <class R, class... A>
  struct Pointer<R(A...)> {
    using type = R(STDAPICALLTYPE*)(A...);
  };
  template <class F>
  typename Pointer<F>::type entry(const char* name) const {
    return reinterpret_cast<typename Pointer<F>::type>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
  }

  HMODULE module_;
};

// Registered before the first test, unregistered after the last.
const InProcessServer& library();
const InProcessServer& test_ado();

}  // namespace qvr::tests
