// A Windows service that runs a script when it is started, keeps a log, and waits to be stopped:
//   night_service FOLDER NAME SCRIPT LOG
// FOLDER and NAME are those of a connection file, SCRIPT is a file of commands in UTF-8. Started by hand it does the
// same once and ends. Builds with mingw-w64 and needs advapi32, ole32, oleaut32, user32 and uuid.

#include <fstream>
#include <iterator>

#include "../../hosts/cpp-late/automation.h"
#include "error_report.h"

namespace {

constexpr const wchar_t* kId = L"cuentas";  // of the connection file; command lines can be read by others

struct Job {
  _bstr_t folder, name;
  std::wstring script, log;
} job;

HANDLE stop = nullptr;  // set when the service is to stop
SERVICE_STATUS_HANDLE service = nullptr;

void say(const std::wstring& line) {
  std::ofstream log(job.log.c_str(), std::ios::app | std::ios::binary);
  for (const wchar_t unit : line) log.put(unit >= L' ' && unit < 127 ? static_cast<char>(unit) : '?');
  log << "\r\n";
}

std::wstring commands() {
  std::ifstream file(job.script.c_str(), std::ios::binary);
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  std::wstring text(bytes.size(), L'\0');
  text.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, bytes.data(), static_cast<int>(bytes.size()),
                                                           text.data(), static_cast<int>(text.size()))));
  return text;
}

bool run_script() {
  const Object parameters(L"QVRlib21.QVRcfp");
  if (!parameters.truth(L"Crear", {kId, job.folder, job.name})) {
    say(L"no connection file");
    return false;
  }
  Sink sink([](DISPID event, const _variant_t& argument) {
    constexpr DISPID kProgreso = 1;
    if (event == kProgreso) say(std::wstring(_bstr_t(argument)));
  });
  const Object script(L"QVRlib21.QVRScr");
  const Subscription subscription(script, sink);
  return script.truth(L"EjecutarComandos", {kId, parameters.call(L"MotorBD"), commands().c_str(),
                                            parameters.call(L"CadenaADO", {kId, true})});
}

// An apartment's messages have to be processed while its thread waits.
void wait_until_stopped() {
  while (MsgWaitForMultipleObjects(1, &stop, FALSE, INFINITE, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }
}

// All that uses the library is on this one thread. The library lets go of the report when COM ends on it.
void work(bool wait) {
  ErrorReport report([](long number, const std::wstring& label) {
    say(L"error " + std::to_wstring(number) + L" in " + label.substr(0, label.find(L':')));
  });
  check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
  report.offer();
  try {
    say(run_script() ? L"done" : L"failed");
  } catch (const _com_error& refused) {
    say(L"automation failed with " + std::to_wstring(refused.Error()));
  }
  if (wait) wait_until_stopped();
  report.withdraw();
  CoUninitialize();
}

void tell(DWORD state) {
  SERVICE_STATUS status{};
  status.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
  status.dwCurrentState = state;
  status.dwControlsAccepted = state == SERVICE_RUNNING ? SERVICE_ACCEPT_STOP | SERVICE_ACCEPT_SHUTDOWN : 0;
  SetServiceStatus(service, &status);
}

// On another thread than the library's: it asks to stop and does nothing else.
DWORD WINAPI control(DWORD asked, DWORD, void*, void*) {
  if (asked == SERVICE_CONTROL_STOP || asked == SERVICE_CONTROL_SHUTDOWN) SetEvent(stop);
  return NO_ERROR;
}

void WINAPI service_main(DWORD, wchar_t**) {
  service = RegisterServiceCtrlHandlerExW(L"", control, nullptr);
  tell(SERVICE_RUNNING);
  work(true);
  say(L"stopped");
  tell(SERVICE_STOPPED);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 5) return 2;
  job = {arguments[1], arguments[2], arguments[3], arguments[4]};
  stop = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  wchar_t name[] = L"";  // a process with one service needs none
  const SERVICE_TABLE_ENTRYW services[] = {{name, service_main}, {nullptr, nullptr}};
  if (StartServiceCtrlDispatcherW(services)) return 0;
  if (GetLastError() != ERROR_FAILED_SERVICE_CONTROLLER_CONNECT) return 1;
  work(false);
  return 0;
}
