#include "base/text.h"

#include <gtest/gtest.h>

#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct Folded {
  const char* name;
  char16_t unit, folded;
};

constexpr Folded kFolded[] = {
    {"lower ascii", u'a', u'A'},
    {"last lower ascii", u'z', u'Z'},
    {"upper ascii", u'A', u'A'},
    {"before a", u'`', u'`'},
    {"behind z", u'{', u'{'},
    {"digit", u'7', u'7'},
    {"a acute", u'\u00e1', u'\u00c1'},
    {"n tilde", u'\u00f1', u'\u00d1'},
    {"u diaeresis", u'\u00fc', u'\u00dc'},
    {"division sign", u'\u00f7', u'\u00f7'},
    {"y diaeresis", u'\u00ff', u'\u0178'},
    {"sharp s has none of one unit", u'\u00df', u'\u00df'},
    {"s caron", u'\u0161', u'\u0160'},
    {"greek alpha", u'\u03b1', u'\u0391'},
    {"final sigma", u'\u03c2', u'\u03a3'},
    {"cyrillic ya", u'\u044f', u'\u042f'},
    {"surrogate", u'\xd801', u'\xd801'},
    {"last unit", u'\xffff', u'\xffff'},
};

using FoldOf = Rows<testing::Test, Folded>;

TEST_P(FoldOf, IsItsSimpleCapital) {
  EXPECT_EQ(fold(GetParam().unit), GetParam().folded);
  EXPECT_EQ(fold(GetParam().folded), GetParam().folded);
}

INSTANTIATE_TEST_SUITE_P(, FoldOf, testing::ValuesIn(kFolded), row_name);

TEST(Fold, IsSettledAfterOnce) {
  for (std::uint32_t unit = 0; unit <= 0xFFFF; ++unit) {
    const char16_t once = fold(static_cast<char16_t>(unit));
    ASSERT_EQ(fold(once), once) << "unit " << unit;
  }
}

struct Compared {
  const char* name;
  TextView a, b;
  bool equal;
};

constexpr Compared kCompared[] = {
    {"both empty", u"", u"", true},
    {"empty and not", u"", u"a", false},
    {"case", u"Jet", u"jET", true},
    {"accents and case", u"\u00d1and\u00da", u"\u00f1AND\u00fa", true},
    {"accent is no case", u"a", u"\u00e1", false},
    {"prefix", u"abc", u"ab", false},
    {"trailing blank", u"abc", u"abc ", false},
    {"sharp s is not ss", u"\u00df", u"SS", false},
    {"zero units count", TextView(u"a\0b", 3), TextView(u"A\0c", 3), false},
};

using EqualNoCase = Rows<testing::Test, Compared>;

TEST_P(EqualNoCase, ComparesWholeTexts) {
  EXPECT_EQ(equal_no_case(GetParam().a, GetParam().b), GetParam().equal);
  EXPECT_EQ(equal_no_case(GetParam().b, GetParam().a), GetParam().equal);
}

INSTANTIATE_TEST_SUITE_P(, EqualNoCase, testing::ValuesIn(kCompared), row_name);

TEST(StartsWithNoCase, LooksAtTheBeginningOnly) {
  EXPECT_TRUE(starts_with_no_case(u"EVITARtransaccion rest", u"EvitarTransaccion"));
  EXPECT_TRUE(starts_with_no_case(u"abc", u""));
  EXPECT_TRUE(starts_with_no_case(u"abc", u"ABC"));
  EXPECT_FALSE(starts_with_no_case(u"ab", u"abc"));
  EXPECT_FALSE(starts_with_no_case(u" abc", u"abc"));
  EXPECT_FALSE(starts_with_no_case(u"", u"a"));
}

struct Replacement {
  const char* name;
  TextView text, what, by, result;
};

constexpr Replacement kReplacements[] = {
    {"none", u"abc", u"x", u"y", u"abc"},        {"every one", u"a||b||", u"||", u"\r\n", u"a\r\nb\r\n"},
    {"three bars", u"|||", u"||", u"-", u"-|"},  {"not what it wrote", u"aa", u"a", u"aa", u"aaaa"},
    {"overlapping", u"aaa", u"aa", u"b", u"ba"}, {"exact in case", u"aA", u"a", u"b", u"bA"},
    {"by nothing", u"axbx", u"x", u"", u"ab"},   {"empty what", u"abc", u"", u"x", u"abc"},
    {"empty text", u"", u"a", u"b", u""},        {"whole text", u"ab", u"ab", u"", u""},
};

using ReplaceAll = Rows<testing::Test, Replacement>;

TEST_P(ReplaceAll, GoesLeftToRightOverTheOriginal) {
  EXPECT_EQ(replace_all(GetParam().text, GetParam().what, GetParam().by), Text(GetParam().result));
}

INSTANTIATE_TEST_SUITE_P(, ReplaceAll, testing::ValuesIn(kReplacements), row_name);

TEST(DecimalDigits, CoverTheWholeRange) {
  EXPECT_EQ(decimal(0), u"0");
  EXPECT_EQ(decimal(-7), u"-7");
  EXPECT_EQ(decimal(INT32_MIN), u"-2147483648");
  EXPECT_EQ(decimal(INT64_MAX), u"9223372036854775807");
  EXPECT_EQ(decimal(INT64_MIN), u"-9223372036854775808");
}

TEST(Padded, NeverTruncates) {
  EXPECT_EQ(padded(5, 2), u"05");
  EXPECT_EQ(padded(0, 4), u"0000");
  EXPECT_EQ(padded(24, 2), u"24");
  EXPECT_EQ(padded(124, 2), u"124");
}

TEST(Hexadecimal, HasAsManyDigitsAsTheWidthSays) {
  EXPECT_EQ(hexadecimal(0x0C0A, 4), u"0C0A");
  EXPECT_EQ(hexadecimal(0xFFFFFFFF, 8), u"FFFFFFFF");
  EXPECT_EQ(hexadecimal(0, 2), u"00");
  EXPECT_EQ(hexadecimal(0x1AB, 2), u"AB");
  EXPECT_EQ(hexadecimal(0x1F, 4, u"0123456789abcdef"), u"001f");
}

TEST(Blanks, AreThoseThatTheCallerNames) {
  EXPECT_TRUE(is_blank(u"  "));
  EXPECT_FALSE(is_blank(u" \t"));
  EXPECT_TRUE(is_blank(u" \t\r\n", kWhiteSpace));
  EXPECT_EQ(trimmed(u" \ta b\t "), u"\ta b\t");
  EXPECT_EQ(trimmed(u" \ta b\t ", kWhiteSpace), u"a b");
  EXPECT_EQ(trimmed(u"\r\n", kWhiteSpace), u"");
}

TEST(AllDigits, AsksForOneAtLeast) {
  EXPECT_TRUE(all_digits(u"09"));
  EXPECT_FALSE(all_digits(u""));
  EXPECT_FALSE(all_digits(u"1."));
  EXPECT_FALSE(all_digits(u"/:"));
}

TEST(Join, KeepsOrderAndBlanks) {
  EXPECT_EQ(join({}), u"");
  EXPECT_EQ(join({u" TOP ", u"", u"10", u" "}), u" TOP 10 ");
}

TEST(AbbreviateForDisplay, LeavesFiveHundredUnitsAlone) {
  EXPECT_EQ(abbreviate_for_display(u""), u"");
  const Text lines = Text(249, u'a') + u"\r\n" + Text(249, u'b');
  ASSERT_EQ(lines.size(), 500u);
  EXPECT_EQ(abbreviate_for_display(lines), lines);
}

TEST(AbbreviateForDisplay, KeepsBothEndsOfALongerText) {
  const Text text = Text(250, u'a') + u"x" + Text(250, u'b');
  EXPECT_EQ(abbreviate_for_display(text), Text(250, u'a') + u"\r\n\r\n...\r\n\r\n" + Text(250, u'b'));
}

TEST(AbbreviateForDisplay, WritesLineBreaksAsBlanksBeforeItCuts) {
  const Text text = u"one\r\ntwo" + Text(600, u'-') + u"three\r\nfour";
  const Text expected = u"one two" + Text(243, u'-') + u"\r\n\r\n...\r\n\r\n" + Text(240, u'-') + u"three four";
  EXPECT_EQ(abbreviate_for_display(text), expected);
}

TEST(AbbreviateForDisplay, RepeatsTheMiddleWhenOneLineIsShorterThanBothEnds) {
  Text breaks;
  for (int i = 0; i < 251; ++i) breaks += kLineBreak;
  EXPECT_EQ(abbreviate_for_display(breaks), Text(250, u' ') + u"\r\n\r\n...\r\n\r\n" + Text(250, u' '));
  Text more;
  for (int i = 0; i < 260; ++i) more += kLineBreak;
  more.replace(0, 2, u"\n\r");
  EXPECT_EQ(abbreviate_for_display(more), u"\n\r" + Text(248, u' ') + u"\r\n\r\n...\r\n\r\n" + Text(250, u' '));
}

TEST(AbbreviateForDisplay, TakesWholeShortLineTwice) {
  Text text;
  for (int i = 0; i < 250; ++i) text += kLineBreak;
  text += u"\n";  // 501 units, 251 once in one line
  EXPECT_EQ(abbreviate_for_display(text), Text(250, u' ') + u"\r\n\r\n...\r\n\r\n" + Text(249, u' ') + u"\n");
}

// Whatever is where the pieces are cut off: the same as of the whole text in one line.
TEST(AbbreviateForDisplay, TakesThePiecesOfTheWholeLine) {
  std::uint32_t random = 1;
  const auto next = [&random](std::uint32_t count) {
    return (random = random * 1664525 + 1013904223) >> 16 & (count - 1);
  };
  for (int i = 0; i < 2000; ++i) {
    Text text;
    while (text.size() <= 500) text += next(64) != 0 ? Text(kLineBreak) : Text(1, u"\r\n a"[next(4)]);
    const Text line = replace_all(text, kLineBreak, u" ");
    EXPECT_EQ(abbreviate_for_display(text),
              line.substr(0, 250) + u"\r\n\r\n...\r\n\r\n" + line.substr(line.size() - 250));
  }
}

TEST(Joined, WritesEachItemOnceInOrder) {
  const auto written = [](std::initializer_list<int> items) {
    return joined(items, u", ", [](int item) { return decimal(item); });
  };
  EXPECT_EQ(written({}), u"");
  EXPECT_EQ(written({7}), u"7");
  EXPECT_EQ(written({7, 0, -1}), u"7, 0, -1");
}

TEST(Wipe, EmptiesAndOverwrites) {
  Text secret = u"a password longer than what a text keeps inside itself";
  const char16_t* units = secret.data();
  const std::size_t size = secret.size();
  wipe(secret);
  EXPECT_TRUE(secret.empty());
  ASSERT_EQ(secret.data(), units);  // the same memory, so what was in it can be looked at
  secret.resize(size, u'\0');
  EXPECT_EQ(secret, Text(size, u'\0'));
}

}  // namespace
}  // namespace qvr::tests
