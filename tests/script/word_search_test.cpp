#include "script/word_search.h"

#include <gtest/gtest.h>

#include <random>

namespace qvr::tests {
namespace {

constexpr TextView kWords[] = {
    u"a",      u"aa",      u"[a]",     u"aba",           u"abab",       u"\r\nAS\r\n", u"\r\ns\r\n",
    u"\u00f1", u"a\u00f1", u"\u00f1a", u"\u00f1\u00f1b", u"[NombreBD]", u"s\u0131",    u"\u0437\u0438\u0437"};

TEST(WordSearch, FindsAWordInAnyCase) {
  const WordSearch search(u"[NombreBD]");
  const TextView text = u"use [NOMBREBD], [nombrebd]; [NombreBD";
  EXPECT_EQ(search.find(text), 4u);
  EXPECT_EQ(search.find(text, 4), 4u);
  EXPECT_EQ(search.find(text, 5), 16u);
  EXPECT_EQ(search.find(text, 17), TextView::npos);
}

TEST(WordSearch, FindsNothingWhereThereIsNoRoom) {
  EXPECT_EQ(WordSearch(u"ab").find(u""), TextView::npos);
  EXPECT_EQ(WordSearch(u"ab").find(u"a"), TextView::npos);
  EXPECT_EQ(WordSearch(u"ab").find(u"ab", 1), TextView::npos);
  EXPECT_EQ(WordSearch(u"ab").find(u"ab", 3), TextView::npos);
  EXPECT_EQ(WordSearch(u"ab").find(u"ab", TextView::npos), TextView::npos);
}

TEST(WordSearch, FindsAnEmptyWordNowhere) {
  EXPECT_EQ(WordSearch(u"").find(u""), TextView::npos);
  EXPECT_EQ(WordSearch(u"").find(u"ab"), TextView::npos);
}

// Texts of the words' own units, among them letters that fold to a plain one (\u017f to S, \u0131 to I) and others.
TEST(WordSearch, FindsWhatThePlainSearchFinds) {
  constexpr TextView kUnits = u"aAbBsS\u017fiI\u0131[]\r\n\r\nnN\u00f1\u00d1\u0437\u0417\u0438x";
  std::mt19937 random(20260104);
  std::uniform_int_distribution<std::size_t> unit(0, kUnits.size() - 1), length(0, 40), few(0, 3);
  int found = 0;
  for (int round = 0; round < 20000; ++round) {
    Text text;
    for (std::size_t left = length(random); left > 0; --left) text += kUnits[unit(random)];
    for (const TextView word : kWords) {
      if (few(random) == 0) text.insert(text.size() / 2, word);
      const WordSearch search(word);
      for (std::size_t from = 0; from <= text.size(); from += 1 + few(random)) {
        const std::size_t expected = find_no_case(text, word, from);
        ASSERT_EQ(search.find(text, from), expected) << testing::PrintToString(join({word, u" in ", text}));
        found += expected != TextView::npos;
      }
    }
  }
  EXPECT_GT(found, 100000);
}

}  // namespace
}  // namespace qvr::tests
