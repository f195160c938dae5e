#include "setting.h"

#include <windows.h>

#include <vector>

#include "automation.h"

namespace gestion {
namespace {

constexpr const wchar_t* kUsage =
    L"usage: gestion [options] LIBRARY FOLDER SCRIPTS\r\n"
    L"  LIBRARY         path of the library's DLL\r\n"
    L"  FOLDER          existing folder for the parameter file and the database\r\n"
    L"  SCRIPTS         folder of the script files: the definition of the database and its updates\r\n"
    L"  --answer        let answer_boxes.exe, beside this program, answer the library's boxes\r\n"
    L"  --search C=T    narrow the list of orders by text T in column C; may be given several times\r\n"
    L"  --ask           ask for more of these\r\n"
    L"  --driver NAME   ODBC driver of the database, SQLite3 unless told otherwise\r\n"
    L"  --unregister    remove the library's registration at the end";

std::wstring full_path(const std::wstring& path) {
  wchar_t buffer[4096];
  const DWORD length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(std::size(buffer)), buffer, nullptr);
  expect(length != 0 && length < std::size(buffer), L"This is no path: " + path);
  return std::wstring(buffer, length);
}

// Under Wine the database driver is one of the host system, with that system's paths. Windows has no such function.
std::wstring path_for_driver(const std::wstring& path) {
  using UnixName = char*(__cdecl*)(const wchar_t*);
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name");
  if (found == nullptr) return path;
  char* const name = reinterpret_cast<UnixName>(reinterpret_cast<void*>(found))(path.c_str());
  expect(name != nullptr, L"There is no such place for a database: " + path);
  const int size = MultiByteToWideChar(CP_UTF8, 0, name, -1, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, name, -1, text.data(), size);
  text.resize(text.size() - 1);
  HeapFree(GetProcessHeap(), 0, name);
  return text;
}

}  // namespace

Search read_search(const std::wstring& typed) {
  const std::size_t equals = typed.find(L'=');
  expect(equals != std::wstring::npos, L"A search is written Column=text: " + typed);
  return {typed.substr(0, equals), typed.substr(equals + 1)};
}

Setting read_setting(int count, wchar_t** arguments) {
  Setting setting;
  std::vector<std::wstring> paths;
  for (int at = 1; at < count; ++at) {
    const std::wstring argument = arguments[at];
    if (argument == L"--answer") {
      setting.answer_boxes = true;
    } else if (argument == L"--ask") {
      setting.ask = true;
    } else if (argument == L"--search" && at + 1 < count) {
      setting.searches.push_back(read_search(arguments[++at]));
    } else if (argument == L"--unregister") {
      setting.unregister = true;
    } else if (argument == L"--driver" && at + 1 < count) {
      setting.driver = arguments[++at];
    } else {
      expect(!argument.starts_with(L"--"), kUsage);
      paths.push_back(full_path(argument));
    }
  }
  expect(paths.size() == 3, kUsage);
  setting.library = paths[0];
  setting.folder = paths[1];
  setting.scripts = paths[2];
  setting.database = setting.folder + L"\\gestion.db";
  setting.driver_database = path_for_driver(setting.database);
  return setting;
}

}  // namespace gestion
