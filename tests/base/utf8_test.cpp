#include "base/utf8.h"

#include <gtest/gtest.h>

#include <random>

#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using namespace std::string_view_literals;

struct Row {
  const char* name;
  TextView text;
  std::string_view bytes;
};

constexpr char16_t kLoneHigh[] = {u'a', 0xD800, u'b', 0};
constexpr char16_t kLoneLow[] = {0xDC00, 0};
constexpr char16_t kSwapped[] = {0xDC00, 0xD800, 0};
constexpr char16_t kHighThenPair[] = {0xD83D, 0xD83D, 0xDE00, 0};

constexpr Row kRows[] = {
    {"empty", u"", ""},
    {"ascii", u"GO\r\n", "GO\r\n"},
    {"zero unit", TextView(u"a\0b", 3), "a\0b"sv},
    {"two bytes", u"\u00f1", "\xc3\xb1"},
    {"least of two bytes", u"\u0080", "\xc2\x80"},
    {"last of two bytes", u"\u07ff", "\xdf\xbf"},
    {"least of three bytes", u"\u0800", "\xe0\xa0\x80"},
    {"euro", u"\u20ac", "\xe2\x82\xac"},
    {"last of three bytes", u"\xffff", "\xef\xbf\xbf"},
    {"least of four bytes", u"\U00010000", "\xf0\x90\x80\x80"},
    {"last of four bytes", u"\U0010ffff", "\xf4\x8f\xbf\xbf"},
    {"lone high half", kLoneHigh,
     "a\xed\xa0\x80"
     "b"},
    {"lone low half", kLoneLow, "\xed\xb0\x80"},
    {"halves in the wrong order", kSwapped, "\xed\xb0\x80\xed\xa0\x80"},
    {"a half before a pair", kHighThenPair, "\xed\xa0\xbd\xf0\x9f\x98\x80"},
};

using Utf8Form = Rows<testing::Test, Row>;

TEST_P(Utf8Form, IsWrittenAndRead) {
  EXPECT_EQ(to_utf8(GetParam().text), GetParam().bytes);
  const auto back = from_utf8(GetParam().bytes);
  ASSERT_TRUE(back);
  EXPECT_EQ(*back, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(, Utf8Form, testing::ValuesIn(kRows), row_name);

struct NoForm {
  const char* name;
  std::string_view bytes;
};

constexpr NoForm kNoForms[] = {
    {"continuation alone", "\x80"},
    {"overlong slash in two", "\xc0\xaf"},
    {"overlong in two, last", "\xc1\xbf"},
    {"overlong in three", "\xe0\x9f\xbf"},
    {"overlong in four", "\xf0\x8f\xbf\xbf"},
    {"beyond the last code point", "\xf4\x90\x80\x80"},
    {"first byte f5", "\xf5\x80\x80\x80"},
    {"first byte ff", "\xff"},
    {"two cut", "a\xc3"},
    {"three cut", "\xe2\x82"},
    {"four cut", "\xf0\x9f\x98"},
    {"letter instead of continuation", "\xc3z"},
    {"first byte instead of continuation", "\xe2\x82\xc3\xb1"},
    {"pair as two threes", "\xed\xa0\xbd\xed\xb8\x80"},
};

using NoUtf8 = Rows<testing::Test, NoForm>;

TEST_P(NoUtf8, IsRefused) { EXPECT_FALSE(from_utf8(GetParam().bytes)); }

INSTANTIATE_TEST_SUITE_P(, NoUtf8, testing::ValuesIn(kNoForms), row_name);

TEST(Utf8, GivesEveryTextBackUnchanged) {
  std::mt19937 random(20240517);
  std::uniform_int_distribution<int> length(0, 40), choice(0, 3), unit(0, 0xFFFF), half(0xD7F0, 0xE010), ascii(0, 0x7F);
  for (int round = 0; round < 20000; ++round) {
    Text text;
    for (int left = length(random); left > 0; --left) {
      const int kind = choice(random);
      text.push_back(static_cast<char16_t>(kind == 0 ? unit(random) : kind == 1 ? ascii(random) : half(random)));
    }
    const auto back = from_utf8(to_utf8(text));
    ASSERT_TRUE(back) << "round " << round;
    ASSERT_EQ(*back, text) << "round " << round;
  }
}

TEST(Utf8, ReadsOnlyTheOneSpellingOfAText) {
  std::mt19937 random(99);
  std::uniform_int_distribution<int> length(1, 6), byte(0, 255);
  int readable = 0;
  for (int round = 0; round < 200000; ++round) {
    std::string bytes;
    for (int left = length(random); left > 0; --left) {
      const int value = byte(random);
      bytes.push_back(static_cast<char>(value % 3 == 0 ? 0x80 | (value & 0x3F) : value));
    }
    const auto text = from_utf8(bytes);
    if (!text) continue;
    ++readable;
    ASSERT_EQ(to_utf8(*text), bytes) << "round " << round;
  }
  EXPECT_GT(readable, 1000);
}

}  // namespace
}  // namespace qvr::tests
