#include "faults/run_log.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qvr::tests {
namespace {

bool has(const Lines& log, const std::string& line) { return std::ranges::find(log, line) != log.end(); }

}  // namespace

std::size_t lines_that_begin(const Lines& log, const std::string& beginning) {
  return static_cast<std::size_t>(
      std::ranges::count_if(log, [&](const std::string& line) { return line.starts_with(beginning); }));
}

void expect_whole_run(const Lines& log, bool outcome, const Lines& refused) {
  SCOPED_TRACE(::testing::PrintToString(log));
  ASSERT_EQ(lines_that_begin(log, "Terminado"), 1u);
  EXPECT_EQ(log.back(), outcome ? "Terminado: True" : "Terminado: False");
  EXPECT_LE(lines_that_begin(log, "new Connection"), 1u);
  EXPECT_LE(lines_that_begin(log, "Connection released"), lines_that_begin(log, "new Connection"));
  EXPECT_LE(lines_that_begin(log, "Command released"), lines_that_begin(log, "new Command"));
  EXPECT_GE(lines_that_begin(log, "Command released"), lines_that_begin(log, "Command.ActiveConnection"));
  EXPECT_TRUE(lines_that_begin(log, "Connection.") == 0 || has(log, "Connection released"));
  const auto done = [&](const char* operation) { return has(log, operation) && !has(refused, operation); };
  EXPECT_TRUE(!done("Connection.Open") || has(log, "Connection.Close"));
  if (!done("Connection.BeginTrans")) return;
  const bool committed = done("Connection.CommitTrans");
  EXPECT_TRUE(!outcome || committed);
  EXPECT_EQ(committed, !has(log, "Connection.RollbackTrans"));
}

}  // namespace qvr::tests
