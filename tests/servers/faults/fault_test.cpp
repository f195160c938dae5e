// A run on a server that fails at one of its steps: what the host sees, and what is in the database then, as
// docs/failures.md says.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/utf8.h"
#include "servers/faults/fault_table.h"
#include "servers/faults/run_host.h"
#include "servers/faults/stage.h"
#include "servers/faults/watchdog.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

constexpr auto kCaseWithin = std::chrono::seconds(120);
constexpr TextView kMethod = u"\r\n\r\nM\u00e9todo: ";

bool is_report(const Text& box) { return box.find(kMethod) != box.npos; }
bool is_of_run(const Text& box) { return box.ends_with(join({kMethod, u"EjecutarComandos"})); }

// In the words of the table. Each failed command is reported and asked about; the run itself is reported at most once.
std::string seen_by_host(const SeenRun& seen, const std::vector<Text>& commands) {
  std::vector<std::string> asked;
  int of_run = 0;
  for (std::size_t each = 0; each < seen.boxes.size(); ++each) {
    const Text& box = seen.boxes[each];
    if (is_of_run(box)) {
      ++of_run;
    } else if (is_report(box)) {
      for (std::size_t command = 0; command < commands.size(); ++command) {
        const bool of_this = box.ends_with(join({kMethod, u"Ejecutar1Comando: ", commands[command]}));
        if (of_this) asked.push_back(std::to_string(command + 1));
      }
      EXPECT_TRUE(each + 1 < seen.boxes.size() && !is_report(seen.boxes[each + 1])) << "not asked";
      ++each;
    } else {
      ADD_FAILURE() << "asked without a report";
    }
  }
  EXPECT_LE(of_run, 1);
  std::string text = asked.empty() ? "" : "asked after " + listed_commands(asked) + ", then ";
  text += seen.result ? "True" : "False";
  if (of_run > 0) text += ", reported";
  return text;
}

bool says(const Text& report, const FaultCase& played) {
  const std::string text = to_utf8(report);
  if (played.when == "before the rollback") return text.find("issing") != text.npos;
  return std::ranges::any_of(FaultTable::of_the_manual().messages, [&](const FaultTable::Message& each) {
    return each.fault == played.fault && each.server == played.server && text.find(each.piece) != text.npos;
  });
}

// Traced lines tell that something failed, and never what the server says of it.
void expect_plain_traces() {
  for (const Text& line : traced()) {
    EXPECT_TRUE(line.starts_with(u"QVRScr.Ejecutar")) << to_utf8(line);
    EXPECT_TRUE(line.ends_with(u" told by another component")) << to_utf8(line);
  }
}

void expect_whole(const SeenRun& seen, const FaultCase& played) {
  SCOPED_TRACE(::testing::PrintToString(seen.boxes));
  EXPECT_EQ(seen.ends, std::vector<bool>{seen.result});
  EXPECT_TRUE(seen.boxes.empty() || says(seen.boxes.front(), played));
  for (const Text& box : seen.boxes) EXPECT_EQ(box.find(u"Secreto"), box.npos);
  expect_plain_traces();
}

void expect_good_run(RunHost& host, const FaultCase& played) {
  FaultCase later = played;
  later.fault = "lock held", later.when = "before opening";  // which nothing comes of
  Stage stage(later);
  const SeenRun seen = host.run(stage.script(), stage.ado_string(), false,
                                [&](TextView call) { stage.before_call(call); });
  stage.end();
  EXPECT_EQ(seen_by_host(seen, stage.commands()), "True");
  EXPECT_EQ(seen.ends, std::vector<bool>{true});
  EXPECT_EQ(stage.left_by_run(), "all");
}

std::vector<FaultCase> cases_here() {
  std::vector<FaultCase> cases = FaultTable::of_the_manual().cases;
  std::erase_if(cases, [](const FaultCase& each) { return each.server != DatabaseServer::here().kind(); });
  return cases;
}

class FailingServer : public testing::TestWithParam<FaultCase> {
 protected:
  // What a process makes once is made by the first run; the others leave nothing.
  static void SetUpTestSuite() { expect_good_run(*RunHost::make(), FaultTable::of_the_manual().cases.front()); }
};

TEST_P(FailingServer, IsTold) {
  const FaultCase& played = GetParam();
  const Watchdog watchdog(played.name, kCaseWithin);
  const auto host = RunHost::make();
  const Handles before = open_handles();
  Stage stage(played);
  const SeenRun seen = host->run(stage.script(), stage.ado_string(), played.yes,
                                 [&](TextView call) { stage.before_call(call); });
  ASSERT_NO_THROW(stage.end());
  EXPECT_EQ(seen_by_host(seen, stage.commands()), played.host);
  EXPECT_EQ(stage.left_by_run(), played.database);
  expect_whole(seen, played);
  wait_until("the end of the run's session", [&] { return !stage.has_sessions_of_runs(); });
  expect_good_run(*host, played);
  // A thread that was joined may be listed for a moment yet, before the case and behind it.
  EXPECT_NO_THROW(wait_until("the end of what the run has opened",
                             [&] {
                               const Handles now = open_handles();
                               return now.handles <= before.handles && now.threads <= before.threads;
                             }))
      << "beside " << before.handles << " handles and " << before.threads << " threads";
}

INSTANTIATE_TEST_SUITE_P(, FailingServer, testing::ValuesIn(cases_here()), row_name);

// One row where nobody is asked or the rollback needs a No, otherwise one for each answer.
void expect_answers(const FaultTable& table, const std::string& fault, const std::string& step, ServerKind server,
                    bool seen) {
  int yes = 0, no = 0, not_asked = 0;
  for (const FaultCase& each : table.cases) {
    if (each.fault != fault || each.when != step || each.server != server) continue;
    ++(!each.host.starts_with("asked") || step == "before the rollback" ? not_asked : each.yes ? yes : no);
  }
  EXPECT_EQ(not_asked + no, seen ? 1 : 0);
  EXPECT_EQ(yes, no);
}

TEST(FaultTable, HasEveryFaultAtEveryStep) {
  const FaultTable& table = FaultTable::of_the_manual();
  for (const std::string& fault : faults_of_a_server()) {
    for (const std::string& step : steps_of_a_run()) {
      for (const ServerKind server : {ServerKind::MariaDb, ServerKind::PostgreSql}) {
        SCOPED_TRACE(fault + ' ' + step + (server == ServerKind::MariaDb ? " MariaDB" : " PostgreSQL"));
        const auto unseen = std::ranges::count(table.unseen, FaultTable::Unseen{fault, step, server});
        expect_answers(table, fault, step, server, unseen == 0);
        EXPECT_LE(unseen, 1);
      }
    }
  }
}

}  // namespace
}  // namespace qvr::tests
