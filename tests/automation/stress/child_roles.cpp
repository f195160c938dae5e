#include "automation/stress/child_roles.h"

#include <windows.h>

#include <shellapi.h>

#include "QVRlib21.h"
#include "automation/library.h"
#include "automation/stress/classes.h"

namespace qvr::tests {
namespace {

// The words of the command line as they were given, whatever their characters.
std::vector<std::wstring> words() {
  std::vector<std::wstring> found;
  int count = 0;
  wchar_t** const list = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 0; i < count; ++i) found.emplace_back(list[i]);
  LocalFree(list);
  return found;
}

void tell_begun() {
  const HANDLE event = OpenEventW(EVENT_MODIFY_STATE, FALSE, words().back().c_str());
  SetEvent(event);
  CloseHandle(event);
}

LateObject created_without_registration(const Server& server) {
  ComPtr<IClassFactory> factory;
  server.class_object(CLSID_QVRcfp, __uuidof(IClassFactory), reinterpret_cast<void**>(&factory));
  return LateObject(created_by(*factory.Get()));
}

// Ends only when a save fails.
int save_again_and_again() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const Server server(beside_program(L"QVRlib21.dll"));
  const LateObject files[] = {created_without_registration(server), created_without_registration(server)};
  for (int i = 0; i < 2; ++i) {
    files[i].call(L"Asignar", {L"id", 2, kProviders[i], L"", L"", L"", L"", L"", L"",
                               std::wstring(static_cast<std::size_t>(kOptionsLengths[i]), L'o')});
  }
  const std::wstring folder = words()[2];
  for (int i = 0;; i = 1 - i) {
    if (describe(files[i].call(L"Guardar", {L"id", folder, L"ended"}).value.raw()) != "BOOL true") return 1;
    if (i == 1) tell_begun();
  }
}

// Ends only when one of the two fails.
int register_again_and_again() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const Server server(beside_program(L"QVRlib21.dll"));
  const wchar_t* const scope = words()[2] == L"user" ? L"user" : nullptr;
  for (tell_begun();;) {
    if (server.install(TRUE, scope) != S_OK || server.install(FALSE, scope) != S_OK) return 1;
  }
}

}  // namespace

Role child_role() {
  const std::vector<std::wstring> given = words();
  if (given.size() < 2) return nullptr;
  if (given[1] == kSaves) return save_again_and_again;
  if (given[1] == kRegisters) return register_again_and_again;
  return nullptr;
}

}  // namespace qvr::tests
