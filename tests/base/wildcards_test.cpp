#include "base/wildcards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/utf8.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct Row {
  const char* name;
  TextView file, pattern;
  bool fits;
};

constexpr Row kRows[] = {
    {"empty and empty", u"", u"", true},
    {"empty and asterisk", u"", u"*", true},
    {"empty and two asterisks", u"", u"**", true},
    {"empty and question mark", u"", u"?", false},
    {"empty and letter", u"", u"a", false},
    {"letter and empty", u"a", u"", false},
    {"same text", u"abc", u"abc", true},
    {"letters in another case", u"aBc", u"AbC", true},
    {"pattern goes on", u"abc", u"abcd", false},
    {"name goes on", u"abcd", u"abc", false},
    {"accents in another case", u"a\u00f1o", u"A\u00d1O", true},
    {"accent is no case", u"a\u00f1o", u"ano", false},
    {"one of one", u"a", u"?", true},
    {"one of two", u"ab", u"?", false},
    {"two of two", u"ab", u"??", true},
    {"question mark inside", u"abc", u"a?c", true},
    {"question mark inside for nothing", u"ac", u"a?c", false},
    {"question mark at the end", u"abc", u"ab?", true},
    {"question mark at the end for nothing", u"ab", u"ab?", false},
    {"question mark for a wide sign", u"\u65e5", u"?", true},
    {"one question mark for a pair", u"\U0001F4C1", u"?", false},  // two code units
    {"two question marks for a pair", u"\U0001F4C1", u"??", true},
    {"asterisk for all", u"abc", u"*", true},
    {"asterisk behind", u"abc", u"a*", true},
    {"asterisk before", u"abc", u"*c", true},
    {"asterisks around", u"abc", u"*b*", true},
    {"asterisk inside", u"abc", u"a*c", true},
    {"asterisk inside for nothing", u"ac", u"a*c", true},
    {"more behind the last letter", u"abcx", u"a*c", false},
    {"more before the first letter", u"xabc", u"a*c", false},
    {"second place of the end", u"abcbc", u"a*bc", true},
    {"two asterisks inside", u"aXbXc", u"a*b*c", true},
    {"two asterisks in another order", u"aXcXb", u"a*b*c", false},
    {"repeated end", u"abab", u"*ab", true},
    {"repeated first letter", u"aab", u"*ab", true},
    {"asterisk and question mark", u"abc", u"*?", true},
    {"asterisk and question mark for nothing", u"", u"*?", false},
    {"three question marks with asterisks", u"abc", u"?*?*?", true},
    {"too few for three question marks", u"ab", u"?*?*?", false},
    {"three asterisks before", u"abc", u"***c", true},
    {"three asterisks behind", u"abc", u"abc***", true},
    {"point", u"a.b", u"a.b", true},
    {"point is no wildcard", u"axb", u"a.b", false},
    {"point of old file names", u"abc", u"*.*", false},  // no DOS rule for "*.*"
    {"point at the end of a name", u"abc.", u"*.*", true},
    {"brackets are no list", u"a", u"[a]", false},
    {"brackets are themselves", u"[a]", u"[A]", true},
    {"number sign", u"#1", u"#1", true},
    {"number sign is no digit", u"11", u"#1", false},
    {"question mark for itself", u"a?b", u"a?b", true},
    {"asterisk for itself", u"a*b", u"a*b", true},
    {"whole path", u"C:\\x\\y.cfc", u"c:\\X\\?.CFC", true},
    {"script of a definition", u"GestionSQL1.cfc", u"GestionSQL?.cfc", true},
    {"script without its place", u"GestionSQL.cfc", u"GestionSQL?.cfc", false},
};

using WildcardPattern = Rows<testing::Test, Row>;

TEST_P(WildcardPattern, FitsThatNameOrNot) {
  EXPECT_EQ(matches_wildcards(GetParam().file, GetParam().pattern), GetParam().fits);
}

INSTANTIATE_TEST_SUITE_P(, WildcardPattern, testing::ValuesIn(kRows), row_name);

TEST(MatchesWildcards, AZeroUnitIsACharacter) {
  const Text zero(1, u'\0');
  EXPECT_TRUE(matches_wildcards(zero, u"?"));
  EXPECT_TRUE(matches_wildcards(zero, zero));
  EXPECT_FALSE(matches_wildcards(zero, u""));
  EXPECT_FALSE(matches_wildcards(u"", zero));
}

// A naive reference implementation.
bool plainly(TextView name, TextView pattern) {
  if (pattern.empty()) return name.empty();
  const TextView rest = pattern.substr(1);
  if (pattern[0] == u'*') return plainly(name, rest) || (!name.empty() && plainly(name.substr(1), pattern));
  const bool one = !name.empty() && (pattern[0] == u'?' || fold(pattern[0]) == fold(name[0]));
  return one && plainly(name.substr(1), rest);
}

Text random_of(std::mt19937& random, TextView letters, std::size_t longest) {
  Text text;
  for (std::size_t left = random() % (longest + 1); left > 0; --left) text += letters[random() % letters.size()];
  return text;
}

TEST(MatchesWildcards, AgreesWithThePlainDefinition) {
  std::mt19937 random(20260105);
  int fitting = 0;
  for (int round = 0; round < 100000; ++round) {
    const Text name = random_of(random, u"aAb.?*", 8), pattern = random_of(random, u"aBb.??**", 6);
    const bool fits = matches_wildcards(name, pattern);
    ASSERT_EQ(fits, plainly(name, pattern)) << to_utf8(join({name, u" / ", pattern}));
    fitting += fits;
  }
  EXPECT_GT(fitting, 5000);
  EXPECT_LT(fitting, 95000);
}

TEST(MatchesWildcards, ManyAsterisksDoNotMultiply) {
  const Text name(2000, u'a');
  Text pattern;
  for (int i = 0; i < 1000; ++i) pattern += u"*a";
  EXPECT_TRUE(matches_wildcards(name, pattern));
  EXPECT_FALSE(matches_wildcards(name, pattern + u"b"));
  EXPECT_FALSE(matches_wildcards(name, pattern + pattern + u"a"));
}

}  // namespace
}  // namespace qvr::tests
