// Empty commands, and text that is never run.
#include <gtest/gtest.h>

#include "tool_in_process.h"

namespace qvr::tests {
namespace {

TEST(CommandRules, TellOfEmptyCommands) {
  expect_rules({
      {"a blank first line", "|GO|select 1|GO|", {"1 empty-command"}},
      {"blanks between", "select 1|GO|  |GO|select 2|GO|", {"3 empty-command"}},
      {"only comments, which SQL Server takes", "-- a|GO|select 1|GO|", {}},
  });
  expect_rules({{"only comments, which Oracle refuses", "-- a|GO|select 1 from dual|GO|", {"1 comment-command"}}},
               Engine::Oracle);
}

TEST(CommandRules, TellOfWhatIsNeverRun) {
  expect_rules({
      {"last command", "select 1|GO|select 2|", {"3 no-last-go"}},
      {"behind blank lines", "select 1|GO|||  |select 2|", {"6 no-last-go"}},
      {"a last comment", "select 1|GO|-- the end|", {}},
      {"blank lines at the end", "select 1|GO|||  |", {}},
      {"no GO at all", "select 1|select 2|", {"1 no-go"}},
      {"only comments", "-- nothing|", {}},
      {"only a name in brackets", "[x]|", {"1 no-go"}},
      {"a string behind GO", "select 1|GO|GO 'x'|", {"3 no-last-go"}},
      {"a second GO and a comment", "select 1|GO|GO -- x|", {"3 go-comment"}},
  });
}

}  // namespace
}  // namespace qvr::tests
