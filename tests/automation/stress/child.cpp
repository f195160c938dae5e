#include "automation/stress/child.h"

#include "automation/host.h"
#include "automation/stress/child_roles.h"

namespace qvr::tests {

Child::Child(const wchar_t* role, const std::wstring& argument) {
  const std::wstring event_name = kBegun + std::to_wstring(GetCurrentProcessId());
  const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, event_name.c_str());
  std::wstring command = L"\"" + beside_program(L"automation_stress.exe") + L"\" " + role + L" \"" + argument + L"\" " +
                         event_name;
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION started{};
  if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &started)) {
    CloseHandle(started.hThread);
    process_ = started.hProcess;
    const HANDLE either[] = {event, process_};
    begun_ = WaitForMultipleObjects(2, either, FALSE, 300000) == WAIT_OBJECT_0;
  }
  CloseHandle(event);
}

Child::~Child() {
  if (process_ == nullptr) return;
  TerminateProcess(process_, kEndedFromOutside);
  WaitForSingleObject(process_, INFINITE);
  CloseHandle(process_);
}

int Child::answer() {
  constexpr DWORD kLongest = 300000;
  DWORD code = 0;
  const bool ended = process_ != nullptr && WaitForSingleObject(process_, kLongest) == WAIT_OBJECT_0;
  return ended && GetExitCodeProcess(process_, &code) ? static_cast<int>(code) : -1;
}

int Child::end_after(DWORD milliseconds) {
  if (begun_ && WaitForSingleObject(process_, milliseconds) == WAIT_TIMEOUT) {
    TerminateProcess(process_, kEndedFromOutside);
  }
  return answer();
}

}  // namespace qvr::tests
