#include "automation/stress/child_roles.h"

#include <windows.h>

#include <shellapi.h>

#include <cstdio>

#include "QVRlib21.h"
#include "automation/floating_point_state.h"
#include "automation/in_use.h"
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

LateObject created_without_registration(const InProcessServer& server) {
  ComPtr<IClassFactory> factory;
  server.class_object(CLSID_QVRcfp, __uuidof(IClassFactory), reinterpret_cast<void**>(&factory));
  return LateObject(created_by(*factory.Get()));
}

// Ends only when a save fails.
int save_again_and_again() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const InProcessServer server(beside_program(L"QVRlib21.dll"));
  const LateObject files[] = {created_without_registration(server), created_without_registration(server)};
  for (int i = 0; i < 2; ++i) {
    files[i].call(L"Asignar", {L"id", 2, kProviders[i], L"", L"", L"", L"", L"", L"",
                               std::wstring(static_cast<std::size_t>(kOptionsLengths[i]), L'o')});
  }
  const std::wstring folder = words()[2];
  for (int i = 0;; i = 1 - i) {
    const std::string answer = describe(files[i].call(L"Guardar", {L"id", folder, L"ended"}).value.raw());
    if (answer != "BOOL true") {
      std::printf("Guardar of the %s: %s, error %lu\n", i == 0 ? "first" : "second", answer.c_str(), GetLastError());
      return 1;
    }
    if (i == 1) tell_begun();
  }
}

// Ends only when one of the two fails.
int register_again_and_again() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const InProcessServer server(beside_program(L"QVRlib21.dll"));
  const wchar_t* const scope = words()[2] == L"user" ? L"user" : nullptr;
  for (tell_begun();;) {
    if (server.install(TRUE, scope) != S_OK || server.install(FALSE, scope) != S_OK) return 1;
  }
}

bool loaded() { return GetModuleHandleW(L"QVRlib21.dll") != nullptr; }

// Whether the library says that it is in use exactly while it is.
bool load_use_and_let_go(const ClassUnderStress& row) {
  const InProcessServer server(beside_program(L"QVRlib21.dll"));
  if (!server.loaded() || server.can_unload() != S_OK) return false;
  ComPtr<IClassFactory> factory;
  if (server.class_object(row.id, __uuidof(IClassFactory), reinterpret_cast<void**>(&factory)) != S_OK) return false;
  if (server.can_unload() != S_FALSE) return false;
  {
    const LateObject object(created_by(*factory.Get()));
    factory.Reset();
    if (!row.works(object) || server.can_unload() != S_FALSE) return false;
  }
  return server.can_unload() == S_OK;
}

bool load_and_let_go(const ClassUnderStress&) {
  const InProcessServer server(beside_program(L"QVRlib21.dll"));
  return server.loaded() && server.can_unload() == S_OK;
}

DWORD next_slot() {
  const DWORD slot = TlsAlloc();
  TlsFree(slot);
  return slot;
}

int load_again_and_again() {
  constexpr std::size_t kRounds = 1200;  // more than a process has slots of thread-local storage
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  tell_begun();
  stop_string_cache();
  const bool used = words()[2] == L"used";
  const auto round = used ? load_use_and_let_go : load_and_let_go;
  const auto rows = classes_under_stress();
  const auto all = [&](std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      if (!round(rows[i % rows.size()]) || !loaded()) return false;
    }
    return true;
  };
  if (!all(60)) return 1;
  const InUse before = in_use();
  const DWORD slot = next_slot();
  if (!all(kRounds)) return 2;
  const InUse after = in_use();
  std::printf("%s: %ld blocks, %ld bytes, %ld handles and %ld slots more\n", used ? "used" : "unused",
              static_cast<long>(after.blocks - before.blocks), static_cast<long>(after.bytes - before.bytes),
              static_cast<long>(after.handles - before.handles), static_cast<long>(next_slot() - slot));
  if (next_slot() != slot || after.handles > before.handles + 20) return 3;
  return after.blocks < before.blocks + 50 && after.bytes < before.bytes + 5000 ? 0 : 4;
}

int load_in_state() {
  const HostState& state = kHostStates[std::stoul(words()[2])];
  const std::wstring path = beside_program(L"QVRlib21.dll");
  tell_begun();
  bool found = false;
  const StateAround around = in_state(state, [&] {
    const InProcessServer server(path);
    ComPtr<IClassFactory> factory;
    found = server.loaded() && server.can_unload() == S_OK &&
            server.class_object(CLSID_QVRcfp, __uuidof(IClassFactory), reinterpret_cast<void**>(&factory)) == S_OK;
  });
  if (around.before == around.after) return found ? 0 : 1;
  std::printf("%s: %s before, %s after\n", state.name, to_string(around.before).c_str(),
              to_string(around.after).c_str());
  return 2;
}

int load_with_slots() {
  const std::size_t left = std::stoul(words()[2]);
  const std::wstring path = beside_program(L"QVRlib21.dll");
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  tell_begun();
  std::vector<DWORD> taken;
  for (DWORD slot = TlsAlloc(); slot != TLS_OUT_OF_INDEXES; slot = TlsAlloc()) taken.push_back(slot);
  if (taken.size() < left) return 1;
  for (std::size_t i = 0; i < left; ++i) {
    TlsFree(taken.back());
    taken.pop_back();
  }
  const auto works = [&] {
    const InProcessServer server(path);
    if (!server.loaded()) return false;
    const LateObject cfp = created_without_registration(server);
    return describe(cfp.call(L"TextoAValor", {L"F", L"2011-01-05"}).value.raw()) == "DATE 40548.000000";
  };
  if (LoadLibraryW(path.c_str()) != nullptr) return works() ? 0 : 12;
  if (loaded()) return 13;
  for (const DWORD slot : taken) TlsFree(slot);
  return works() ? 10 : 14;
}

}  // namespace

Role child_role() {
  const std::vector<std::wstring> given = words();
  if (given.size() < 2) return nullptr;
  if (given[1] == kSaves) return save_again_and_again;
  if (given[1] == kRegisters) return register_again_and_again;
  if (given[1] == kLoads) return load_again_and_again;
  if (given[1] == kLoadsInState) return load_in_state;
  if (given[1] == kLoadsWithSlots) return load_with_slots;
  return nullptr;
}

}  // namespace qvr::tests
