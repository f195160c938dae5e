#include "com/registration.h"

#include "QVRlib21.h"
#include "com/answer.h"
#include "com/class_table.h"
#include "com/registry_rows.h"
#include "platform/platform.h"
#include "platform/windows/wide_text.h"

namespace qvr::com {
namespace {

class RegistryKey {
 public:
  ~RegistryKey() {
    if (key_ != nullptr) RegCloseKey(key_);
  }
  RegistryKey() = default;
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  HKEY get() const { return key_; }
  HKEY* out() { return &key_; }

 private:
  HKEY key_ = nullptr;
};

LSTATUS open_classes(Scope scope, REGSAM access, RegistryKey& classes) {
  const HKEY root = scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
  return RegCreateKeyExW(root, L"Software\\Classes", 0, nullptr, 0, access, nullptr, classes.out(), nullptr);
}

LSTATUS write_value(HKEY classes, const RegistryValue& value) {
  RegistryKey key;
  const LSTATUS status = RegCreateKeyExW(classes, value.key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, key.out(),
                                         nullptr);
  if (status != ERROR_SUCCESS) return status;
  const auto size = static_cast<DWORD>((value.data.size() + 1) * sizeof(wchar_t));
  return RegSetValueExW(key.get(), value.name.empty() ? nullptr : value.name.c_str(), 0, REG_SZ,
                        reinterpret_cast<const BYTE*>(value.data.c_str()), size);
}

std::wstring own_file() {
  const Text path = system_platform().system.module_path();
  return std::wstring(path.begin(), path.end());
}

// Whether the library of the other width is registered in the same scope.
bool other_width_registered(Scope scope) {
  constexpr REGSAM kOther = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
  wchar_t id[40];
  StringFromGUID2(class_table().front().id, id, static_cast<int>(std::size(id)));
  const HKEY root = scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
  const std::wstring path = std::wstring(L"Software\\Classes\\CLSID\\") + id + L"\\InprocServer32";
  RegistryKey other;
  if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ | kOther, other.out()) != ERROR_SUCCESS) return false;
  // On 32-bit Windows both registry views are the same key, which this library itself has written or deleted.
  wchar_t file[MAX_PATH * 4];
  DWORD size = sizeof file;
  return RegGetValueW(other.get(), nullptr, nullptr, RRF_RT_REG_SZ, nullptr, file, &size) == ERROR_SUCCESS;
}

// CLSID, Interface and TypeLib do not exist for a user who never registered anything: remove them when empty.
void remove_empty(HKEY classes, const wchar_t* name) {
  RegistryKey key;
  DWORD keys = 1, values = 1;
  if (RegOpenKeyExW(classes, name, 0, KEY_READ, key.out()) != ERROR_SUCCESS) return;
  RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr, nullptr,
                   nullptr);
  if (keys == 0 && values == 0) RegDeleteKeyW(classes, name);
}

LSTATUS remove_rows(HKEY classes, const RegistryRows& rows, Scope scope) {
  LSTATUS worst = ERROR_SUCCESS;
  const auto remove = [&](const std::wstring& key) {
    const LSTATUS status = RegDeleteTreeW(classes, key.c_str());
    if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) worst = status;
  };
  for (const RegistryTree& tree : rows.trees) {
    if (!tree.shared) remove(tree.key);
  }
  const bool shared_stay = other_width_registered(scope);
  for (const RegistryTree& tree : rows.trees) {
    if (tree.shared && !shared_stay) remove(tree.key);
  }
  if (scope == Scope::User) {
    for (const wchar_t* name : {L"CLSID", L"Interface", L"TypeLib"}) remove_empty(classes, name);
  }
  return worst;
}

HRESULT result_from(LSTATUS status, HRESULT otherwise) {
  if (status == ERROR_SUCCESS) return S_OK;
  return status == ERROR_ACCESS_DENIED ? E_ACCESSDENIED : otherwise;
}

}  // namespace

HRESULT register_library(Scope scope) noexcept {
  return guarded(GUID_NULL, E_OUTOFMEMORY, [&] {
    const RegistryRows rows = registry_rows(own_file());
    RegistryKey classes;
    LSTATUS status = open_classes(scope, KEY_READ | KEY_WRITE | DELETE, classes);
    for (auto value = rows.values.begin(); status == ERROR_SUCCESS && value != rows.values.end(); ++value) {
      status = write_value(classes.get(), *value);
    }
    if (status != ERROR_SUCCESS && classes.get() != nullptr) remove_rows(classes.get(), rows, scope);
    return result_from(status, SELFREG_E_CLASS);
  });
}

HRESULT unregister_library(Scope scope) noexcept {
  return guarded(GUID_NULL, E_OUTOFMEMORY, [&] {
    const RegistryRows rows = registry_rows(own_file());
    RegistryKey classes;
    LSTATUS status = open_classes(scope, KEY_READ | KEY_WRITE | DELETE, classes);
    if (status == ERROR_SUCCESS) status = remove_rows(classes.get(), rows, scope);
    return result_from(status, SELFREG_E_CLASS);
  });
}

}  // namespace qvr::com
