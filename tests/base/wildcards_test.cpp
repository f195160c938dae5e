#include "base/wildcards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

struct Row {
  TextView name, pattern;
  bool fits;
};

constexpr Row kRows[] = {
    {u"", u"", true},
    {u"", u"*", true},
    {u"", u"**", true},
    {u"", u"?", false},
    {u"", u"a", false},
    {u"a", u"", false},
    {u"abc", u"abc", true},
    {u"aBc", u"AbC", true},
    {u"abc", u"abcd", false},
    {u"abcd", u"abc", false},
    {u"a\u00f1o", u"A\u00d1O", true},
    {u"a\u00f1o", u"ano", false},
    {u"a", u"?", true},
    {u"ab", u"?", false},
    {u"ab", u"??", true},
    {u"abc", u"a?c", true},
    {u"ac", u"a?c", false},
    {u"abc", u"ab?", true},
    {u"ab", u"ab?", false},
    {u"\u65e5", u"?", true},
    {u"\U0001F4C1", u"?", false},  // two code units
    {u"\U0001F4C1", u"??", true},
    {u"abc", u"*", true},
    {u"abc", u"a*", true},
    {u"abc", u"*c", true},
    {u"abc", u"*b*", true},
    {u"abc", u"a*c", true},
    {u"ac", u"a*c", true},
    {u"abcx", u"a*c", false},
    {u"xabc", u"a*c", false},
    {u"abcbc", u"a*bc", true},
    {u"aXbXc", u"a*b*c", true},
    {u"aXcXb", u"a*b*c", false},
    {u"abab", u"*ab", true},
    {u"aab", u"*ab", true},
    {u"abc", u"*?", true},
    {u"", u"*?", false},
    {u"abc", u"?*?*?", true},
    {u"ab", u"?*?*?", false},
    {u"abc", u"***c", true},
    {u"abc", u"abc***", true},
    {u"a.b", u"a.b", true},
    {u"axb", u"a.b", false},
    {u"abc", u"*.*", false},  // no rules of old file names
    {u"abc.", u"*.*", true},
    {u"a", u"[a]", false},
    {u"[a]", u"[A]", true},
    {u"#1", u"#1", true},
    {u"11", u"#1", false},
    {u"a?b", u"a?b", true},
    {u"a*b", u"a*b", true},
    {u"C:\\x\\y.cfc", u"c:\\X\\?.CFC", true},
    {u"GestionSQL1.cfc", u"GestionSQL?.cfc", true},
    {u"GestionSQL.cfc", u"GestionSQL?.cfc", false},
};

TEST(MatchesWildcards, ForEachPattern) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(join({row.name, u" / ", row.pattern})));
    EXPECT_EQ(matches_wildcards(row.name, row.pattern), row.fits);
  }
}

TEST(MatchesWildcards, AZeroUnitIsACharacter) {
  const Text zero(1, u'\0');
  EXPECT_TRUE(matches_wildcards(zero, u"?"));
  EXPECT_TRUE(matches_wildcards(zero, zero));
  EXPECT_FALSE(matches_wildcards(zero, u""));
  EXPECT_FALSE(matches_wildcards(u"", zero));
}

// The definition as plainly as it can be written.
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

TEST(LessNoCase, OrdersByTheUnitsInCapitals) {
  constexpr TextView kAscending[] = {u"",   u" ",   u"-", u"1", u"10", u"2",      u"A",
                                     u"Ab", u"ABC", u"b", u"C", u"_",  u"\u00d1", u"\u65e5"};
  for (std::size_t i = 0; i < std::size(kAscending); ++i) {
    for (std::size_t k = 0; k < std::size(kAscending); ++k) {
      SCOPED_TRACE(to_utf8(join({kAscending[i], u" / ", kAscending[k]})));
      EXPECT_EQ(less_no_case(kAscending[i], kAscending[k]), i < k);
    }
  }
}

TEST(LessNoCase, NamesThatDifferInCaseAreEqual) {
  for (const auto& [a, b] : {std::pair(TextView(u"abc"), TextView(u"ABC")), {u"\u00f1", u"\u00d1"}, {u"x_Y", u"X_y"}}) {
    EXPECT_FALSE(less_no_case(a, b));
    EXPECT_FALSE(less_no_case(b, a));
  }
}

TEST(LessNoCase, SortsAnyNames) {
  std::mt19937 random(20260106);
  std::vector<Text> names;
  for (int i = 0; i < 3000; ++i) names.push_back(random_of(random, u"aAbB_19\u00f1\u00d1", 4));
  std::ranges::sort(names, [](const Text& a, const Text& b) { return less_no_case(a, b); });
  for (std::size_t i = 0; i + 1 < names.size(); ++i) {
    Text here = names[i], next = names[i + 1];
    for (Text* name : {&here, &next}) std::ranges::transform(*name, name->begin(), fold);
    ASSERT_LE(here, next);
  }
}

}  // namespace
}  // namespace qvr::tests
