#include "automation/database.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace qvr::tests {
namespace {

// The ODBC driver is the host system's and wants its kind of path.
std::wstring driver_path(const std::wstring& file) {
  using Convert = char*(CDECL*)(LPCWSTR);
  const auto convert = reinterpret_cast<Convert>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
  if (convert == nullptr) return file;
  char* const path = convert(file.c_str());
  const std::wstring result(path, path + strlen(path));
  HeapFree(GetProcessHeap(), 0, path);
  return result;
}

std::wstring unused_file(const wchar_t* extension) {
  static int number = 0;
  return work_folder() + L"\\" + std::to_wstring(++number) + extension;
}

void watch_calls(const wchar_t* failures, const wchar_t* log) {
  using WatchCalls = void (*)(const wchar_t*, const wchar_t*);
  const auto watch = reinterpret_cast<WatchCalls>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"testado.dll"), "WatchCalls")));
  ASSERT_NE(watch, nullptr);
  watch(failures, log);
}

}  // namespace

Database::Database() : Database(unused_file(L".db")) {}

Database::Database(const std::wstring& file)
    : AdoDatabase(L"Provider=MSDASQL;Extended Properties=\"DRIVER={SQLite3};Database=" + driver_path(file) + L";\""),
      file_(file) {
  DeleteFileW(file_.c_str());  // of a run that was broken off, whose process had the same number
}

Database::~Database() { DeleteFileW(file_.c_str()); }

LateObject AdoDatabase::open() const {
  LateObject connection(L"ADODB.Connection");
  EXPECT_EQ(connection.call(L"Open", {connection_string_}).result, S_OK);
  return connection;
}

void AdoDatabase::run(const std::wstring& statement) const {
  const LateObject connection = open();
  const LateAnswer ran = connection.call(L"Execute", {statement});
  EXPECT_EQ(ran.result, S_OK) << narrow(statement) << ": " << narrow(ran.description);
  connection.call(L"Close");
}

std::string AdoDatabase::ask(const wchar_t* query) const {
  const LateObject connection = open();
  const LateAnswer opened = connection.call(L"Execute", {query});
  EXPECT_EQ(opened.result, S_OK) << narrow(opened.description);
  const LateObject rows{ComPtr<IDispatch>(opened.value.raw().pdispVal)};
  const LateObject fields{ComPtr<IDispatch>(rows.get(L"Fields").value.raw().pdispVal)};
  const LateObject field{ComPtr<IDispatch>(fields.get(L"Item", {0}).value.raw().pdispVal)};
  const std::string answer = describe(field.get(L"Value").value.raw());
  connection.call(L"Close");
  return answer.substr(answer.find(' ') + 1);
}

FaultyAdo::FaultyAdo(const wchar_t* failures) : log_(unused_file(L".log")) { watch_calls(failures, log_.c_str()); }

FaultyAdo::~FaultyAdo() {
  watch_calls(nullptr, nullptr);
  DeleteFileW(log_.c_str());
}

std::string FaultyAdo::calls() const {
  std::ifstream file(narrow(log_), std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  std::erase(text, '\r');
  return text;
}

}  // namespace qvr::tests
