// Case-insensitive comparison and search.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/text.h"
#include "base/utf8.h"

namespace qvr::tests {
namespace {

Text in_capitals(TextView text) {
  Text capitals(text);
  std::ranges::transform(capitals, capitals.begin(), fold);
  return capitals;
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
  for (int i = 0; i < 3000; ++i) {
    Text name(random() % 5, u'a');
    for (char16_t& unit : name) unit = u"aAbB_19\u00f1\u00d1"[random() % 9];
    names.push_back(std::move(name));
  }
  std::ranges::sort(names, less_no_case);
  for (std::size_t i = 0; i + 1 < names.size(); ++i) {
    ASSERT_LE(in_capitals(names[i]), in_capitals(names[i + 1]));
  }
}

TEST(FindNoCase, FindsATextInAnyCase) {
  const TextView text = u"use [NOMBREBD], [nombrebd]; [NombreBD";
  EXPECT_EQ(find_no_case(text, u"[NombreBD]"), 4u);
  EXPECT_EQ(find_no_case(text, u"[NombreBD]", 4), 4u);
  EXPECT_EQ(find_no_case(text, u"[NombreBD]", 5), 16u);
  EXPECT_EQ(find_no_case(text, u"[NombreBD]", 17), TextView::npos);
}

TEST(FindNoCase, FindsNothingWhereThereIsNoRoom) {
  EXPECT_EQ(find_no_case(u"", u"ab"), TextView::npos);
  EXPECT_EQ(find_no_case(u"a", u"ab"), TextView::npos);
  EXPECT_EQ(find_no_case(u"ab", u"ab", 1), TextView::npos);
  EXPECT_EQ(find_no_case(u"ab", u"ab", 3), TextView::npos);
}

TEST(FindNoCase, FindsAnEmptyTextNowhere) {
  EXPECT_EQ(find_no_case(u"", u""), TextView::npos);
  EXPECT_EQ(find_no_case(u"ab", u""), TextView::npos);
}

// Longer than the strides of the search can be: conditions of whole queries are searched.
TEST(FindNoCase, FindsAWordOfAnyLength) {
  for (const std::size_t length : {254u, 255u, 256u, 257u, 600u}) {
    const Text word = u"b" + Text(length - 2, u'\u00f1') + u"c";
    for (const std::size_t before : {0u, 1u, 253u, 254u, 255u, 256u, 700u}) {
      const Text text = Text(before, u'\u00d1') + in_capitals(word) + Text(300, u'b');
      EXPECT_EQ(find_no_case(text, word), before) << length;
      EXPECT_EQ(find_no_case(text, word, before + 1), TextView::npos) << length;
    }
  }
}

// Texts of the words' own units, among them letters that fold to a plain one (\u017f to S, \u0131 to I) and others.
TEST(FindNoCase, FindsWhatAPlainSearchInCapitalsFinds) {
  constexpr TextView kWords[] = {
      u"a",      u"aa",      u"[a]",     u"aba",           u"abab",       u"\r\nAS\r\n", u"\r\ns\r\n",
      u"\u00f1", u"a\u00f1", u"\u00f1a", u"\u00f1\u00f1b", u"[NombreBD]", u"s\u0131",    u"\u0437\u0438\u0437"};
  constexpr TextView kUnits = u"aAbBsS\u017fiI\u0131[]\r\n\r\nnN\u00f1\u00d1\u0437\u0417\u0438x";
  std::mt19937 random(20260104);
  int found = 0;
  for (int round = 0; round < 5000; ++round) {
    Text text;
    for (std::size_t left = random() % 41; left > 0; --left) text += kUnits[random() % kUnits.size()];
    for (const TextView word : kWords) {
      if (random() % 4 == 0) text.insert(text.size() / 2, word);
      const Text capitals = in_capitals(text);
      for (std::size_t from = 0; from <= text.size(); from += 1 + random() % 4) {
        const std::size_t expected = capitals.find(in_capitals(word), from);
        ASSERT_EQ(find_no_case(text, word, from), expected) << to_utf8(join({word, u" in ", text}));
        found += expected != TextView::npos;
      }
    }
  }
  EXPECT_GT(found, 25000);
}

}  // namespace
}  // namespace qvr::tests
