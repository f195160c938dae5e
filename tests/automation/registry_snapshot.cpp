#include "automation/registry_snapshot.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace qvr::tests {
namespace {

void add_values(HKEY key, const std::wstring& path, RegistryLines& lines) {
  std::vector<wchar_t> name(16384), data(32768);
  for (DWORD index = 0;; ++index) {
    auto name_size = static_cast<DWORD>(name.size());
    auto data_size = static_cast<DWORD>(data.size() * sizeof(wchar_t)) - 2;
    DWORD type = 0;
    if (RegEnumValueW(key, index, name.data(), &name_size, nullptr, &type, reinterpret_cast<BYTE*>(data.data()),
                      &data_size) != ERROR_SUCCESS) {
      return;
    }
    data[data_size / sizeof(wchar_t)] = 0;
    const std::wstring text = type == REG_SZ ? std::wstring(data.data()) : L"(other)";
    lines.insert(path + L" : " + name.data() + L" = " + text);
  }
}

void add_tree(HKEY parent, const std::wstring& name, const std::wstring& path, REGSAM view, RegistryLines& lines) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ | view, &key) != ERROR_SUCCESS) return;
  lines.insert(path);
  add_values(key, path, lines);
  wchar_t child[256];
  for (DWORD index = 0, size = 256; RegEnumKeyExW(key, index, child, &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
       ++index, size = 256) {
    add_tree(key, child, path + L"\\" + child, view, lines);
  }
  RegCloseKey(key);
}

}  // namespace

RegistryLines registry_snapshot() {
  RegistryLines lines;
  for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY}) {
    const std::wstring width = view == KEY_WOW64_32KEY ? L"32 " : L"64 ";
    add_tree(HKEY_LOCAL_MACHINE, L"Software\\Classes", width + L"machine", view, lines);
    add_tree(HKEY_CURRENT_USER, L"Software\\Classes", width + L"user", view, lines);
  }
  return lines;
}

RegistryLines added(const RegistryLines& before, const RegistryLines& after) {
  RegistryLines lines;
  std::ranges::set_difference(after, before, std::inserter(lines, lines.end()));
  return lines;
}

}  // namespace qvr::tests
