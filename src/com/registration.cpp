#include "com/registration.h"

#include <optional>
#include <utility>
#include <vector>

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

// What a value is in the registry, whatever its type.
struct Content {
  DWORD type = REG_SZ;
  std::vector<BYTE> bytes;
};

Content content_of(const std::wstring& text) {
  const auto* bytes = reinterpret_cast<const BYTE*>(text.c_str());
  return {REG_SZ, {bytes, bytes + (text.size() + 1) * sizeof(wchar_t)}};
}

const wchar_t* name_of(const RegistryValue& value) { return value.name.empty() ? nullptr : value.name.c_str(); }

LSTATUS write_value(HKEY classes, const RegistryValue& value, const Content& content) {
  RegistryKey key;
  const LSTATUS status = RegCreateKeyExW(classes, value.key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, key.out(),
                                         nullptr);
  if (status != ERROR_SUCCESS) return status;
  return RegSetValueExW(key.get(), name_of(value), 0, content.type, content.bytes.data(),
                        static_cast<DWORD>(content.bytes.size()));
}

std::optional<Content> read_value(HKEY classes, const RegistryValue& value) {
  RegistryKey key;
  if (RegOpenKeyExW(classes, value.key.c_str(), 0, KEY_READ, key.out()) != ERROR_SUCCESS) return std::nullopt;
  Content content;
  DWORD size = 0;
  if (RegQueryValueExW(key.get(), name_of(value), nullptr, &content.type, nullptr, &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  content.bytes.resize(size);
  RegQueryValueExW(key.get(), name_of(value), nullptr, nullptr, content.bytes.data(), &size);
  return content;
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

void remove_empty(HKEY classes, const std::wstring& name) {
  RegistryKey key;
  DWORD keys = 1, values = 1;
  if (RegOpenKeyExW(classes, name.c_str(), 0, KEY_READ, key.out()) != ERROR_SUCCESS) return;
  RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr, nullptr,
                   nullptr);
  if (keys == 0 && values == 0) RegDeleteKeyW(classes, name.c_str());
}

// With its key and the keys above it, as far as they are empty then.
void remove_value(HKEY classes, const RegistryValue& value) {
  RegDeleteKeyValueW(classes, value.key.c_str(), name_of(value));
  for (std::wstring key = value.key; !key.empty();) {
    remove_empty(classes, key);
    const std::size_t end = key.find_last_of(L'\\');
    key.resize(end != std::wstring::npos ? end : 0);
  }
}

// All or none: values that were there before come back.
LSTATUS write_rows(HKEY classes, const RegistryRows& rows) {
  std::vector<std::pair<Content, std::optional<Content>>> contents;  // to be written, and former
  for (const RegistryValue& value : rows.values) {
    contents.emplace_back(content_of(value.data), read_value(classes, value));
  }
  for (std::size_t i = 0; i < contents.size(); ++i) {
    const LSTATUS status = write_value(classes, rows.values[i], contents[i].first);
    if (status == ERROR_SUCCESS) continue;
    for (std::size_t written = i + 1; written-- > 0;) {
      const std::optional<Content>& former = contents[written].second;
      if (former) {
        write_value(classes, rows.values[written], *former);
      } else {
        remove_value(classes, rows.values[written]);
      }
    }
    return status;
  }
  return ERROR_SUCCESS;
}

LSTATUS remove_rows(HKEY classes, const RegistryRows& rows, Scope scope) {
  LSTATUS worst = ERROR_SUCCESS;
  const auto remove = [&](const RegistryTree& tree) {
    if (tree.only_when_empty) return remove_empty(classes, tree.key);
    const LSTATUS status = RegDeleteTreeW(classes, tree.key.c_str());
    if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) worst = status;
  };
  for (const RegistryTree& tree : rows.trees) {
    if (!tree.shared) remove(tree);
  }
  const bool shared_stay = other_width_registered(scope);
  for (const RegistryTree& tree : rows.trees) {
    if (tree.shared && !shared_stay) remove(tree);
  }
  // They do not exist for a user who never registered anything.
  if (scope == Scope::User) {
    for (const wchar_t* name : {L"CLSID", L"Interface", L"TypeLib"}) remove_empty(classes, name);
  }
  return worst;
}

HRESULT result_from(LSTATUS status, const char* function) {
  if (status == ERROR_SUCCESS) return S_OK;
  trace({{}, function, status, u"The registry refused a key", SourcePlace::here()});
  return status == ERROR_ACCESS_DENIED ? E_ACCESSDENIED : SELFREG_E_CLASS;
}

}  // namespace

HRESULT register_library(Scope scope) noexcept {
  return guarded(GUID_NULL, E_OUTOFMEMORY, [&] {
    const RegistryRows rows = registry_rows(own_file());
    RegistryKey classes;
    LSTATUS status = open_classes(scope, KEY_READ | KEY_WRITE | DELETE, classes);
    if (status == ERROR_SUCCESS) status = write_rows(classes.get(), rows);
    return result_from(status, "register_library");
  });
}

HRESULT unregister_library(Scope scope) noexcept {
  return guarded(GUID_NULL, E_OUTOFMEMORY, [&] {
    const RegistryRows rows = registry_rows(own_file());
    RegistryKey classes;
    LSTATUS status = open_classes(scope, KEY_READ | KEY_WRITE | DELETE, classes);
    if (status == ERROR_SUCCESS) status = remove_rows(classes.get(), rows, scope);
    return result_from(status, "unregister_library");
  });
}

}  // namespace qvr::com
