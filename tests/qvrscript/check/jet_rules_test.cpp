// What Jet refuses: comments, and several statements in one command.
#include <gtest/gtest.h>

#include "support/rows.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

const RuleRow kRows[] = {
    {"one statement", "select 1|GO|", {}},
    {"its semicolon", "select 1;|GO|", {}},
    {"two semicolons", "select 1; ;|GO|", {}},
    {"two statements", "delete from T;|delete from U|GO|", {"2 several-statements"}},
    {"a semicolon in a string", "insert into T values ('a; b', \"c;d\")|GO|", {}},
    {"a semicolon in a name", "select [a;b] from T|GO|", {}},
    {"parameters", "parameters pN long; select N from T where N = pN|GO|", {}},
    {"parameters of two", "parameters pN long; delete from T; delete from U|GO|", {"1 several-statements"}},
    {"comment in front", "-- all|select 1|GO|", {"1 jet-comment"}},
    {"comment behind blanks", "select 1|  --all|GO|", {"2 jet-comment"}},
    {"comment behind code", "select 1 -- all|GO|", {"1 jet-comment"}},
    {"block comment", "select 1|/* all */|GO|", {"2 jet-comment"}},
    {"the first of two", "/* a */ select 1 /* b */|GO|", {"1 jet-comment"}},
    {"in each command", "/* a */ select 1|GO|-- b|select 2|GO|", {"1 jet-comment", "3 jet-comment"}},
    {"minus a negative number", "select 5 --3, 4--N|GO|", {}},
    {"hyphens in a string", "select '-- a', '/*'|GO|", {}},
};

using JetRules = Rows<testing::Test, RuleRow>;

TEST_P(JetRules, TellOfWhatJetRefuses) { expect_rules(GetParam(), Engine::Jet); }

INSTANTIATE_TEST_SUITE_P(, JetRules, testing::ValuesIn(kRows), row_name);

TEST(JetRule, IsJetsOnly) { expect_rules({{"SQL Server", "-- a|select 1; /* b */ select 2|GO|", {}}}); }

}  // namespace
}  // namespace qvr::tests
