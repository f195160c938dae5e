// Comments that silence a rule for the command behind them.
#include "qvrscript/check/ignore_comments.h"

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "qvrscript/check/check.h"
#include "support/rows.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

// As `rules_in`, with the reason of those that are silenced.
Rules with_reasons(std::string_view text, Engine engine = Engine::SqlServer) {
  Rules rules;
  for (const auto& finding : script_tool::findings_in(u"x.cfc", lines(text), engine)) {
    const std::string reason = finding.reason ? " (" + to_utf8(*finding.reason) + ")" : "";
    rules.push_back(rules_of({finding}).front() + reason);
  }
  return rules;
}

const RuleRow kRows[] = {
    {"in front", "-- qvrscript: ignore own-transaction: it is so|commit|GO|", {"2 own-transaction (it is so)"}},
    {"without blanks", "--QVRSCRIPT:ignore own-transaction:so|commit|GO|", {"2 own-transaction (so)"}},
    {"behind the code",
     "commit -- qvrscript: ignore own-transaction: so|GO|commit|GO|",
     {"1 own-transaction (so)", "3 own-transaction (so)"}},
    {"of its command only",
     "-- qvrscript: ignore own-transaction: so|commit|GO|commit|GO|",
     {"2 own-transaction (so)", "4 own-transaction"}},
    {"not what stands before",
     "commit|-- qvrscript: ignore own-transaction: so|rollback|GO|",
     {"1 own-transaction", "3 own-transaction (so)"}},
    {"in front of a GO line",
     "-- qvrscript: ignore own-transaction: so|GO|commit|GO|rollback|GO|",
     {"3 own-transaction (so)", "5 own-transaction"}},
    {"two rules",
     "-- qvrscript: ignore own-transaction, go-count: a: b|commit|GO 2|GO|",
     {"2 own-transaction (a: b)", "3 go-count (a: b)"}},
    {"two comments",
     "-- qvrscript: ignore go-count: a|-- qvrscript: ignore own-transaction: b|commit|GO 2|GO|",
     {"3 own-transaction (b)", "4 go-count (a)"}},
    {"block comment", "/* qvrscript: ignore own-transaction: so */ commit|GO|", {"1 own-transaction (so)"}},
    {"a line of one", "/*| * qvrscript: ignore own-transaction: so| */|commit|GO|", {"4 own-transaction (so)"}},
    {"what is never run", "select 1|GO|-- qvrscript: ignore no-last-go: so|select 2|", {"3 no-last-go (so)"}},
    {"another rule", "-- qvrscript: ignore go-count: so|commit|GO|", {"1 silence-unused", "2 own-transaction"}},
    {"at the end", "commit|GO|-- qvrscript: ignore own-transaction: so|", {"1 own-transaction", "3 silence-unused"}},
    {"the second of two alike",
     "-- qvrscript: ignore go-count: a|-- qvrscript: ignore go-count: b|select 1|GO 2|GO|",
     {"1 silence-unused", "4 go-count (b)"}},
    {"no reason", "-- qvrscript: ignore own-transaction|commit|GO|", {"1 silence-no-reason", "2 own-transaction"}},
    {"an empty reason",
     "/* qvrscript: ignore own-transaction: */commit|GO|",
     {"1 silence-no-reason", "1 own-transaction"}},
    {"an unknown rule",
     "-- qvrscript: ignore own-transaction, go: so|commit|GO|",
     {"1 silence-unknown-rule", "2 own-transaction"}},
    {"no rule", "-- qvrscript: ignore : so|commit|GO|", {"1 silence-unknown-rule", "2 own-transaction"}},
    {"another verb", "-- qvrscript: disable own-transaction: so|commit|GO|", {"1 silence-form", "2 own-transaction"}},
    {"no verb", "-- qvrscript:|select 1|GO|", {"1 silence-form"}},
    {"another comment", "-- see qvrscript: ignore own-transaction: so|commit|GO|", {"2 own-transaction"}},
    {"in a string", "select 'qvrscript: ignore own-transaction: so' commit|GO|", {"1 own-transaction"}},
};

using IgnoreComment = Rows<testing::Test, RuleRow>;

TEST_P(IgnoreComment, SilencesTheNextCommand) { EXPECT_EQ(with_reasons(lines(GetParam().text)), GetParam().rules); }

INSTANTIATE_TEST_SUITE_P(, IgnoreComment, testing::ValuesIn(kRows), row_name);

TEST(IgnoreComments, AreNoneForJet) {
  EXPECT_EQ(with_reasons("-- qvrscript: ignore jet-comment: so|select 1|GO|", Engine::Jet), Rules{"1 jet-comment"});
}

TEST(IgnoreComments, KeepALongReasonShort) {
  const std::string text = "-- qvrscript: ignore own-transaction: " + std::string(100000, 'x') + "|commit|GO|";
  const Rules rules = with_reasons(text);
  ASSERT_EQ(rules.size(), 1u);
  EXPECT_LT(rules.front().size(), 600u);
}

}  // namespace
}  // namespace qvr::tests
