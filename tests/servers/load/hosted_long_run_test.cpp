// A run of minutes through automation keeps nothing of its commands.
#include <windows.h>

#include <gtest/gtest.h>
#include <tlhelp32.h>

#include <cstdio>

#include "automation/host.h"
#include "automation/in_use.h"
#include "automation/sink.h"
#include "servers/load/long_run.h"
#include "servers/session.h"

namespace qvr::tests {
namespace {

std::size_t threads_of_process() {
  const HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  THREADENTRY32 entry{};
  entry.dwSize = sizeof entry;
  std::size_t own = 0;
  for (BOOL found = Thread32First(all, &entry); found; found = Thread32Next(all, &entry)) {
    own += entry.th32OwnerProcessID == GetCurrentProcessId();
  }
  CloseHandle(all);
  return own;
}

Held held_on_windows() {
  const InUse now = in_use();
  return {now.bytes, now.handles, threads_of_process()};
}

bool run(const LateObject& runner, const Text& commands) {
  const auto passed = [](const Text& text) { return std::wstring(text.begin(), text.end()); };
  const LateAnswer answer = runner.call(L"EjecutarComandos",
                                        {L"app", 2, passed(commands), passed(DatabaseServer::here().ado_string())});
  return describe(answer.value.raw()) == "BOOL true";
}

TEST(HostedRun, OfMinutesKeepsNothing) {
  const DatabaseServer& server = DatabaseServer::here();
  stop_string_cache();
  const LateObject runner(L"QVRlib21.QVRScr");
  ASSERT_TRUE(run(runner, long_run_table(100)));
  const std::size_t groups = groups_of_long_run();
  Watched watched(groups * kCommandsOfGroup, held_on_windows);
  std::size_t told = 0, ends = 0;
  {
    Connected connected(runner);
    connected.sink().reaction = [&](DISPID event, VARIANT&) {
      connected.sink().events.clear();  // what the test itself keeps
      if (event == kTerminado) {
        ++ends;
      } else if (told++ != 0) {  // the first one tells that commands are counted
        watched.after_command();
      }
      return S_OK;
    };
    EXPECT_TRUE(run(runner, long_run_script(server.kind(), groups)));
  }
  EXPECT_EQ(ends, 1u);
  EXPECT_EQ(watched.growth(), "");
  std::fputs(watched.shown().c_str(), stdout);
  Session session(server.odbc_string());
  EXPECT_EQ(session.ask(u"select count(*) from Larga where T = 'Cambiada'"), decimal(static_cast<int>(groups)));
}

}  // namespace
}  // namespace qvr::tests
