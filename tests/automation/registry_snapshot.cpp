#include "automation/registry_snapshot.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "QVRlib21.h"

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

// The identifiers of this library, as texts.
const std::vector<std::wstring>& own_identifiers() {
  static const std::vector<std::wstring> names = [] {
    std::vector<std::wstring> all;
    for (const GUID& id :
         {LIBID_QVRlib21, CLSID_Ov, CLSID_QVRcfp, CLSID_QVRScr, CLSID_cSQL20, CLSID_iSQL20, CLSID_uSQL20, CLSID_QVRprp,
          IID__Ov, IID__QVRcfp, IID__QVRScr, IID__cSQL20, IID__iSQL20, IID__uSQL20, IID__QVRprp, DIID___QVRScr}) {
      wchar_t text[40];
      StringFromGUID2(id, text, 40);
      all.push_back(text);
    }
    return all;
  }();
  return names;
}

constexpr wchar_t kProgramIds[] = L"QVRlib21.";

// Whether a key below the classes root is this library's, so that all below it is of interest.
bool is_ours(const std::wstring& path) {
  const auto inside = [&](const std::wstring& name) { return path.find(name) != std::wstring::npos; };
  return inside(kProgramIds) || std::ranges::any_of(own_identifiers(), inside);
}

constexpr int kLevelsOfOthers = 2;

void add_tree(HKEY parent, const std::wstring& name, const std::wstring& path, REGSAM view, int level,
              RegistryLines& lines) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ | view, &key) != ERROR_SUCCESS) return;
  lines.insert(path);
  add_values(key, path, lines);
  // The other width's part stands below a key of its own.
  const int children = name == L"Wow6432Node" ? level : level + 1;
  if (children > kLevelsOfOthers && !is_ours(path)) {
    RegCloseKey(key);
    return;
  }
  wchar_t child[256];
  for (DWORD index = 0, size = 256;
       RegEnumKeyExW(key, index, child, &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
       ++index, size = 256) {
    add_tree(key, child, path + L"\\" + child, view, children, lines);
  }
  RegCloseKey(key);
}

}  // namespace

RegistryLines registry_snapshot() {
  RegistryLines lines;
  for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY}) {
    const std::wstring width = view == KEY_WOW64_32KEY ? L"32 " : L"64 ";
    add_tree(HKEY_LOCAL_MACHINE, L"Software\\Classes", width + L"machine", view, 0, lines);
    add_tree(HKEY_CURRENT_USER, L"Software\\Classes", width + L"user", view, 0, lines);
  }
  return lines;
}

RegistryLines own_registry_keys() {
  RegistryLines lines;
  for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY}) {
    const std::wstring width = view == KEY_WOW64_32KEY ? L"32 " : L"64 ";
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
      const std::wstring start = width + (root == HKEY_LOCAL_MACHINE ? L"machine\\" : L"user\\");
      const auto add = [&](const std::wstring& key) {
        add_tree(root, L"Software\\Classes\\" + key, start + key, view, 0, lines);
      };
      for (const wchar_t* name : {L"Ov", L"QVRcfp", L"QVRScr", L"cSQL20", L"uSQL20", L"QVRprp"}) {
        add(kProgramIds + std::wstring(name));
      }
      for (const std::wstring& id : own_identifiers()) {
        for (const wchar_t* kind : {L"CLSID\\", L"Interface\\", L"TypeLib\\"}) add(kind + id);
      }
    }
  }
  return lines;
}

RegistryLines added(const RegistryLines& before, const RegistryLines& after) {
  RegistryLines lines;
  std::ranges::set_difference(after, before, std::inserter(lines, lines.end()));
  return lines;
}

}  // namespace qvr::tests
