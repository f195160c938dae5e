// Many conditions added to one query.
#include "query/condition_chain.h"

#include "query/query_fixture.h"

namespace qvr::tests {
namespace {

using query::ConditionChain;

Text numbered(int number) {
  const Text digits = decimal(number);
  return join({u"C.C\u00f3digo <> ", digits, u" Or f(C.x, (", digits, u"))"});
}

TEST(ConditionChainTest, RefusesWhatItHoldsInAnyCase) {
  ConditionChain chain;
  Text expected;
  for (int i = 0; i < 3000; ++i) {
    ASSERT_TRUE(chain.add(numbered(i)));
    expected += join({i == 0 ? u"" : u" and ", u"(", numbered(i), u")"});
  }
  EXPECT_EQ(chain.text(), expected);
  const Text kHeld[] = {numbered(0), numbered(2999), u"c.c\u00d3DIGO <> 1500 OR F(c.x, (1500))", u"2999", u"C.x, (7)",
                        u"C.x, (7",  u"999)",        numbered(10) + u") and (" + numbered(11)};
  for (const Text& held : kHeld) {
    EXPECT_FALSE(chain.add(held)) << to_utf8(held);
  }
  EXPECT_EQ(chain.text(), expected);
  for (const Text& other : {numbered(3000), Text(u"C.x, (7) "), Text(u"9999)")}) {
    EXPECT_TRUE(chain.add(other)) << to_utf8(other);
  }
}

// Unbalanced parentheses, and some in literals: containment compares text only.
TEST(ConditionChainTest, AnswersAsAPlainSearchDoes) {
  ConditionChain chain;
  Text plain;
  std::uint32_t state = 7;
  const auto next = [&state](std::uint32_t below) { return (state = state * 1664525 + 1013904223) / 65536 % below; };
  int refused = 0;
  for (int i = 0; i < 6000; ++i) {
    Text condition(1 + next(5), u'a');
    for (char16_t& unit : condition) unit = u"aAbB()' "[next(8)];
    const Text parenthesised = join({u"(", condition, u")"});
    const bool expected = !trimmed(condition).empty() && find_no_case(plain, parenthesised) == Text::npos;
    ASSERT_EQ(chain.add(condition), expected) << to_utf8(condition);
    if (expected) plain += plain.empty() ? parenthesised : u" and " + parenthesised;
    if (!expected) ++refused;
    ASSERT_EQ(chain.text().size(), plain.size());
  }
  EXPECT_EQ(chain.text(), plain);
  EXPECT_GT(plain.size(), 8192u);
  EXPECT_GT(refused, 1000);
}

TEST(ConditionChainTest, BeginsAgainWithAnotherText) {
  ConditionChain chain;
  for (int i = 0; i < 1000; ++i) ASSERT_TRUE(chain.add(numbered(i)));
  const Text full = chain.text();
  EXPECT_FALSE(chain.add(numbered(1)));
  chain.clear();
  EXPECT_EQ(chain.text(), u"");
  EXPECT_TRUE(chain.add(numbered(1)));
  chain.assign(full);
  EXPECT_FALSE(chain.add(numbered(999)));
  EXPECT_TRUE(chain.add(numbered(1000)));
  chain.assign(u"  ");
  EXPECT_TRUE(chain.add(numbered(5)));
  EXPECT_EQ(chain.text(), join({u"(", numbered(5), u")"})) << "blanks are no condition to go on from";
}

}  // namespace
}  // namespace qvr::tests
