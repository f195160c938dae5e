#include "automation/host.h"

#include <gtest/gtest.h>

#include <thread>

namespace qvr::tests {
namespace {

struct Exception : EXCEPINFO {
  Exception() : EXCEPINFO{} {}
  ~Exception() {
    SysFreeString(bstrSource);
    SysFreeString(bstrDescription);
    SysFreeString(bstrHelpFile);
  }
};

// Reversed, as Invoke takes them; the originals stay the owners.
std::vector<VARIANT> reversed(const std::vector<Var>& arguments) {
  std::vector<VARIANT> raw;
  for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument) raw.push_back(argument->raw());
  return raw;
}

struct Folder {
  Folder() {
    wchar_t root[MAX_PATH];
    GetTempPathW(MAX_PATH, root);
    path = std::wstring(root) + L"qvr" + std::to_wstring(GetCurrentProcessId());
    CreateDirectoryW(path.c_str(), nullptr);
  }
  ~Folder() {
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW((path + L"\\*").c_str(), &entry);
    if (search != INVALID_HANDLE_VALUE) {
      do {
        DeleteFileW((path + L"\\" + entry.cFileName).c_str());
      } while (FindNextFileW(search, &entry));
      FindClose(search);
    }
    RemoveDirectoryW(path.c_str());
  }
  std::wstring path;
};

}  // namespace

LateObject::LateObject(const wchar_t* program_id) {
  CLSID id;
  EXPECT_EQ(CLSIDFromProgID(program_id, &id), S_OK) << narrow(program_id);
  EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object_)), S_OK) << narrow(program_id);
}

LateAnswer LateObject::invoke(DISPID id, WORD flags, DISPPARAMS& parameters) const {
  LateAnswer answer;
  Exception exception;
  UINT wrong = 0xFFFF;
  answer.result = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &answer.value.raw(),
                                  &exception, &wrong);
  answer.wrong_argument = wrong;
  answer.code = exception.scode;
  if (exception.bstrDescription != nullptr) answer.description = exception.bstrDescription;
  if (exception.bstrSource != nullptr) answer.source = exception.bstrSource;
  return answer;
}

LateAnswer LateObject::call(const wchar_t* name, std::vector<Var> arguments, WORD flags) const {
  LateAnswer answer;
  DISPID id = DISPID_UNKNOWN;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  answer.result = object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(answer.result)) return answer;
  std::vector<VARIANT> raw = reversed(arguments);
  DISPPARAMS parameters{raw.data(), nullptr, static_cast<UINT>(raw.size()), 0};
  return invoke(id, flags, parameters);
}

LateAnswer LateObject::put(const wchar_t* name, Var value) const {
  LateAnswer answer;
  DISPID id = DISPID_UNKNOWN, put_name = DISPID_PROPERTYPUT;
  LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
  answer.result = object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(answer.result)) return answer;
  VARIANT raw = value.raw();
  DISPPARAMS parameters{&raw, &put_name, 1, 1};
  return invoke(id, DISPATCH_PROPERTYPUT, parameters);
}

LateAnswer LateObject::call_named(const wchar_t* name, std::vector<const wchar_t*> named,
                                  std::vector<Var> arguments) const {
  LateAnswer answer;
  std::vector<LPOLESTR> names{const_cast<LPOLESTR>(name)};
  for (const wchar_t* argument_name : named) names.push_back(const_cast<LPOLESTR>(argument_name));
  std::vector<DISPID> ids(names.size(), DISPID_UNKNOWN);
  answer.result = object_->GetIDsOfNames(IID_NULL, names.data(), static_cast<UINT>(names.size()), LOCALE_USER_DEFAULT,
                                         ids.data());
  if (FAILED(answer.result)) return answer;
  std::vector<VARIANT> raw;
  for (std::size_t i = 0; i < named.size(); ++i) raw.push_back(arguments[i].raw());
  for (std::size_t i = arguments.size(); i > named.size(); --i) raw.push_back(arguments[i - 1].raw());
  DISPPARAMS parameters{raw.data(), ids.data() + 1, static_cast<UINT>(raw.size()), static_cast<UINT>(named.size())};
  return invoke(ids[0], DISPATCH_METHOD, parameters);
}

void on_fresh_thread(const std::function<void()>& body) {
  std::thread([&] {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    body();
    CoUninitialize();
  }).join();
}

void on_thread_in_language(const wchar_t* setting, const std::function<void()>& body) {
  constexpr const wchar_t* kRoot = L"Software\\VB and VBA Program Settings\\QVR";
  const std::wstring key = std::wstring(kRoot) + L"\\Idioma";
  const auto size = static_cast<DWORD>((wcslen(setting) + 1) * sizeof(wchar_t));
  EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"IdiomaOmision", REG_SZ, setting, size), 0);
  on_fresh_thread(body);
  RegDeleteTreeW(HKEY_CURRENT_USER, kRoot);
}

std::wstring beside_program(const wchar_t* name) {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  std::wstring folder = path;
  return folder.substr(0, folder.find_last_of(L'\\') + 1) + name;
}

const std::wstring& work_folder() {
  static const Folder folder;
  return folder.path;
}

std::string narrow(const std::wstring& text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0, nullptr,
                                       nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(), size, nullptr, nullptr);
  return bytes;
}

}  // namespace qvr::tests
