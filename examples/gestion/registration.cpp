#include "registration.h"

#include "automation.h"

namespace gestion {
namespace {

class Module {
 public:
  explicit Module(const std::wstring& path) : handle_(LoadLibraryW(path.c_str())) {
    expect(handle_ != nullptr, L"The library cannot be loaded: " + path);
  }
  ~Module() { FreeLibrary(handle_); }
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;

  void install(BOOL in, Scope scope) const {
    using Install = HRESULT(STDAPICALLTYPE*)(BOOL, LPCWSTR);
    const FARPROC found = GetProcAddress(handle_, "DllInstall");
    expect(found != nullptr, L"The library has no DllInstall");
    const auto call = reinterpret_cast<Install>(reinterpret_cast<void*>(found));
    require(call(in, scope == Scope::User ? L"user" : L""), L"DllInstall");
  }

 private:
  HMODULE handle_;
};

}  // namespace

Scope register_library(const std::wstring& dll, const std::wstring& class_name) {
  const Module module(dll);
  module.install(TRUE, Scope::User);
  if (leads_to(class_name, dll)) return Scope::User;
  module.install(FALSE, Scope::User);
  module.install(TRUE, Scope::Machine);
  return Scope::Machine;
}

void unregister_library(const std::wstring& dll, Scope scope) { Module(dll).install(FALSE, scope); }

bool leads_to(const std::wstring& class_name, const std::wstring& dll) {
  CLSID id;
  wchar_t id_text[40];
  if (FAILED(CLSIDFromProgID(class_name.c_str(), &id))) return false;
  StringFromGUID2(id, id_text, static_cast<int>(std::size(id_text)));
  const std::wstring key = std::wstring(L"CLSID\\") + id_text + L"\\InprocServer32";
  wchar_t file[4096];
  DWORD size = sizeof file;
  return RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, file, &size) == ERROR_SUCCESS &&
         lstrcmpiW(file, dll.c_str()) == 0;
}

}  // namespace gestion
