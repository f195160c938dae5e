// GO lines that separate unintentionally, and look-alikes that do not separate.
#include <gtest/gtest.h>

#include "support/rows.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

const RuleRow kPlain[] = {
    {"two commands", "select 1|GO|select 2|GO|", {}},
    {"any case, blank lines behind", "select 1|go|||select 2|Go|", {}},
    {"the last line without an end, which the loading adds", "select 1|GO", {}},
    {"a word that begins alike", "select 1|GOTO x|GOAL|GO_2|GO=3|GO|", {}},
    {"a comment that is closed before", "/* a */ -- b|select 1|GO|", {}},
    {"an apostrophe in a comment", "-- don't|select 1|GO|", {}},
    {"what looks like GO in a comment", "/*| GO|GO 5|GO;|*/ select 1|GO|", {}},
};

using PlainScript = Rows<testing::Test, RuleRow>;

TEST_P(PlainScript, HasNoFinding) { expect_rules(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, PlainScript, testing::ValuesIn(kPlain), row_name);

const RuleRow kInside[] = {
    {"block comment", "/* a|GO|b */ select 1|GO|", {"2 go-in-comment"}},
    {"nested block comment", "/* a /* b */|GO|*/ select 1|GO|", {"2 go-in-comment"}},
    {"string", "select 'a|GO|b'|GO|", {"2 go-in-string"}},
    {"doubled apostrophe", "select 'it''s|go|b'|GO|", {"2 go-in-string"}},
    {"quoted name", "select \"a|GO|b\"|GO|", {"2 go-in-string"}},
    {"several in one", "/*|GO|x|GO|*/ select 1|GO|", {"2 go-in-comment", "4 go-in-comment"}},
    {"never closed", "select 1|GO|/* x|GO|", {"3 unclosed-comment", "4 go-in-comment"}},
    {"string never closed", "select 'x|GO|", {"1 unclosed-string", "2 go-in-string"}},
};

using SeparatorInside = Rows<testing::Test, RuleRow>;

TEST_P(SeparatorInside, ACommentOrAStringIsFound) { expect_rules(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, SeparatorInside, testing::ValuesIn(kInside), row_name);

TEST(SeparatorRules, DoNotNestCommentsForOracle) {
  expect_rules({{"closed by the first mark", "/* a /* b */|select 1|GO|", {}}}, Engine::Oracle);
  expect_rules({{"still open", "/* a /* b */|select 1|GO|", {"1 unclosed-comment", "3 go-in-comment"}}});
}

TEST(SeparatorRules, KnowThatJetHasNoComments) {
  expect_rules({{"an apostrophe behind two hyphens", "select 1 --'|GO|x'|GO|", {"2 go-in-string"}}}, Engine::Jet);
  expect_rules({{"the same for SQL Server", "select 1 --'|GO|select 2|GO|", {}}});
}

const RuleRow kAlike[] = {
    {"count", "select 1|GO 5|select 2|GO|", {"2 go-count"}},
    {"count behind a tab", "select 1|go\t12|select 2|GO|", {"2 go-count"}},
    {"semicolon", "select 1|GO;|select 2|GO|", {"2 go-semicolon"}},
    {"blank and semicolon", "select 1|go ;|select 2|GO|", {"2 go-semicolon"}},
    {"line comment", "select 1|GO --x|select 2|GO|", {"2 go-comment"}},
    {"block comment", "select 1|GO/*x*/|select 2|GO|", {"2 go-comment"}},
    {"blank before", "select 1| GO|select 2|GO|", {"2 go-blanks"}},
    {"blank behind", "select 1|GO |select 2|GO|", {"2 go-blanks"}},
    {"tab", "select 1|\tgo|select 2|GO|", {"2 go-blanks"}},
    {"no-break space", "select 1|GO\xC2\xA0|select 2|GO|", {"2 go-blanks"}},
    {"mark of a joined file", "select 1|\xEF\xBB\xBFGO|select 2|GO|", {"2 go-blanks"}},
};

using LineThatLooksLikeGo = Rows<testing::Test, RuleRow>;

TEST_P(LineThatLooksLikeGo, IsFound) { expect_rules(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, LineThatLooksLikeGo, testing::ValuesIn(kAlike), row_name);

TEST(SeparatorRules, TellOfGoWithNoCommandBefore) {
  expect_rules({
      {"first line", "GO|select 1|GO|", {"1 go-first-line"}},
      {"two in a row", "select 1|GO|GO|select 2|GO|", {"3 go-twice"}},
      {"a blank line between", "select 1|GO||GO|select 2|GO|", {"4 go-twice"}},
      {"two at the end", "select 1|GO|GO|", {"3 go-twice"}},
      {"three", "select 1|GO|GO|GO|select 2|GO|", {"3 go-twice"}},
  });
}

}  // namespace
}  // namespace qvr::tests
