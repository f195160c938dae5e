// A run of minutes keeps nothing of its commands.
#include "servers/load/long_run.h"

#include <malloc.h>

#include <cstdio>
#include <filesystem>

#include "servers/server_run.h"

namespace qvr::tests {
namespace {

std::size_t entries(const char* folder) {
  const std::filesystem::directory_iterator all(folder);
  return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

Held held_natively() {
  const struct mallinfo2 heap = mallinfo2();
  return {heap.uordblks + heap.hblkhd, entries("/proc/self/fd"), entries("/proc/self/task")};
}

struct WatchingEvents final : ScriptEvents {
  WatchingEvents(Watched& all, CallLog& calls) : watched(all), log(calls) {}
  void Progreso(const Text&) noexcept override {
    log.take();                                // what the test itself keeps
    if (told++ != 0) watched.after_command();  // the first one tells that commands are counted
  }
  void Terminado(bool Exito) noexcept override { ended = Exito; }
  Watched& watched;
  CallLog& log;
  std::size_t told = 0;
  bool ended = false;
};

TEST_F(ServerRun, OfMinutesKeepsNothing) {
  ASSERT_TRUE(run(long_run_table(100)));
  const std::size_t groups = groups_of_long_run();
  const Text script = long_run_script(server.kind(), groups);
  Watched watched(groups * kCommandsOfGroup, held_natively);
  WatchingEvents watching(watched, thread.log);
  QVRScr long_runner(watching);
  Text id = u"app", shown;
  EXPECT_TRUE(long_runner.EjecutarComandos(id, Engine::SqlServer, script, server.ado_string(), shown));
  EXPECT_TRUE(watching.ended);
  EXPECT_EQ(watched.growth(), "");
  std::fputs(watched.shown().c_str(), stdout);
  EXPECT_EQ(ask(u"select count(*) from Larga where T = 'Cambiada'"), decimal(static_cast<int>(groups)));
}

TEST(Watched, SeesEachKindOfGrowth) {
  static Held now;
  const auto grown = [](std::size_t Held::*what, std::size_t by) {
    now = {1000, 10, 3};
    Watched watched(20, [] { return now; });
    for (int i = 0; i < 20; ++i) {
      if (i == 15) now.*what += by;
      watched.after_command();
    }
    return !watched.growth().empty();
  };
  EXPECT_FALSE(grown(&Held::bytes, 16384));
  EXPECT_TRUE(grown(&Held::bytes, 16385));
  EXPECT_TRUE(grown(&Held::handles, 1));
  EXPECT_TRUE(grown(&Held::threads, 1));
  EXPECT_FALSE(Watched(20, [] { return Held(); }).growth().empty()) << "a run that was not watched";
}

}  // namespace
}  // namespace qvr::tests
