// Runs in which each call to ADO fails in each way, and from which the connection can be gone.
#include <algorithm>

#include "faults/ado_failures.h"
#include "faults/failing_allocations.h"
#include "faults/run_log.h"
#include "script/script_fixture.h"
#include "services/builtin_error_report.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using Broken = RecordingAdo::Broken;

constexpr TextView kCommands = u"A\r\nGO\r\nB\r\nGO\r\n";
const char* const kQuestion = "Box Yes/No: \u00bfDesea que se ejecuten los restantes comandos?";

// How a run is made.
struct Way {
  bool transaction;
  BoxAnswer answer;
};
constexpr Way kWays[] = {
    {true, BoxAnswer::No}, {true, BoxAnswer::Yes}, {false, BoxAnswer::No}, {false, BoxAnswer::Yes}};

struct OneRun {
  explicit OneRun(Way made) : way(made) { thread.boxes.always = way.answer; }

  bool run() {
    Text id = way.transaction ? u"id" : u"EvitarTransaccionid", shown_text;
    return runner.EjecutarComandos(id, Engine::SqlServer, kCommands, u"Provider=P;", shown_text);
  }
  // The lines of a run into which nothing comes.
  static Lines good_log(Way way) {
    OneRun good(way);
    EXPECT_TRUE(good.run());
    return good.thread.log.take();
  }
  static int calls(Way way) {
    OneRun good(way);
    EXPECT_TRUE(good.run());
    return good.thread.ado.call_count();
  }

  Way way;
  TestThread thread;
  LoggingEvents events{thread.log};
  QVRScr runner{events};
};

// One report for each failed command and at most one for the run; each failed command is followed by the question.
void expect_reports(const Lines& log, bool success) {
  const std::size_t of_commands = lines_that_begin(log, "Report") - [&log] {
    return static_cast<std::size_t>(std::ranges::count_if(log, [](const std::string& line) {
      return line.starts_with("Report") && line.find("|EjecutarComandos") != line.npos;
    }));
  }();
  const std::size_t of_run = lines_that_begin(log, "Report") - of_commands;
  EXPECT_EQ(of_commands, lines_that_begin(log, kQuestion));
  EXPECT_LE(of_run, success ? 0u : 1u);
  EXPECT_GE(of_commands + of_run, success ? 0u : 1u);
}

void try_run(Way way, int nth, const NamedFailure& failure, Broken broken, const NamedErrors& errors) {
  SCOPED_TRACE(::testing::Message() << "call " << nth << ", " << failure.name
                                    << (broken == Broken::Yes ? " for good" : "") << ", errors " << errors.name
                                    << ", transaction " << way.transaction << ", answer "
                                    << static_cast<int>(way.answer));
  OneRun run(way);
  run.thread.ado.told_errors = errors.told;
  run.thread.ado.fail_call(nth, failure.thrower, broken);
  const bool success = run.run();
  const Lines log = run.thread.log.take();
  expect_whole_run(log, success, run.thread.ado.refused);
  expect_reports(log, success);
  // Only a failed command can be passed over, and by the user alone.
  EXPECT_TRUE(!success || (way.answer == BoxAnswer::Yes && lines_that_begin(log, kQuestion) > 0));
  // A new connection is a good one again.
  run.thread.ado.fail_call(0, nullptr, Broken::No);
  EXPECT_TRUE(run.run());
  EXPECT_EQ(run.thread.log.take(), OneRun::good_log(way));
}

TEST(FailingRun, EndsOnceAndCleansUp) {
  expect_any_traces();
  // What a process makes once is made by the first run; the others must leave nothing.
  try_run(kWays[0], 1, ado_failures().front(), Broken::No, ado_errors().front());
  for (const Way way : kWays) {
    const int calls = OneRun::calls(way);
    EXPECT_EQ(calls, way.transaction ? 18 : 16);
    for (int nth = 1; nth <= calls; ++nth) {
      for (const NamedFailure& failure : ado_failures()) {
        for (const Broken broken : {Broken::No, Broken::Yes}) {
          const std::size_t live = live_allocations();
          try_run(way, nth, failure, broken, ado_errors_at(nth, failure));
          ASSERT_FALSE(::testing::Test::HasFailure());
          EXPECT_EQ(live_allocations(), live) << "not given back";
        }
      }
    }
  }
}

// Every failure of ADO is shown in one box.
TEST(FailingRun, IsShownWhateverAdoTells) {
  expect_any_traces();
  for (const NamedFailure& failure : ado_failures()) {
    for (const NamedErrors& errors : ado_errors()) {
      SCOPED_TRACE(::testing::Message() << failure.name << ", errors " << errors.name);
      OneRun run({true, BoxAnswer::No});
      run.thread.make_error_report = [&run] {
        return std::make_unique<services::BuiltinErrorReport>(run.thread.boxes);
      };
      run.thread.ado.told_errors = errors.told;
      run.thread.ado.fail_call(3, failure.thrower, Broken::Yes);  // Open
      EXPECT_FALSE(run.run());
      ASSERT_EQ(run.thread.boxes.shown.size(), 1u);
      EXPECT_TRUE(run.thread.boxes.shown[0].ends_with(u"\r\n\r\nM\u00e9todo: EjecutarComandos"));
    }
  }
}

// A memory that fails while the failure of ADO is reported takes away the report at most.
TEST(FailingRun, NeedsNoMemoryToEnd) {
  expect_any_traces();
  for (const Shortage shortage : {Shortage::Once, Shortage::Lasting}) {
    for (int nth = 1; nth <= OneRun::calls(kWays[0]); ++nth) {
      bool failed = true;
      for (std::size_t allocation = 1; failed; ++allocation) {
        SCOPED_TRACE(::testing::Message() << "call " << nth << ", allocation " << allocation);
        OneRun run(kWays[0]);
        Text id = u"id", shown_text;
        bool success = true;
        run.thread.ado.fail_call(
            nth,
            [] {
              throw RuntimeFailure(FailureDetail{-1, u"refused by the provider", u"Provider"});
            },
            Broken::Yes);
        {
          FailingAllocations failing(allocation, shortage);
          success = run.runner.EjecutarComandos(id, Engine::SqlServer, kCommands, u"Provider=P;", shown_text);
          failed = failing.failed();
        }
        EXPECT_FALSE(success);
        const Lines log = run.thread.log.take();
        expect_whole_run(log, success, run.thread.ado.refused);
        EXPECT_LE(lines_that_begin(log, "Report"), 2u);
        ASSERT_FALSE(::testing::Test::HasFailure());
      }
    }
  }
}

}  // namespace
}  // namespace qvr::tests
