#include <gtest/gtest.h>

#include <cmath>

#include "base/failure.h"
#include "base/number_text.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct Row {
  const char* name;
  Text text;
  double number;
};

const Row kRows[] = {
    {"empty", u"", 0},
    {"blanks", u"   ", 0},
    {"letters", u"abc", 0},
    {"whole", u"12", 12},
    {"negative", u"-12", -12},
    {"plus", u"+7", 7},
    {"decimals", u"2.5", 2.5},
    {"no digit before the point", u".5", 0.5},
    {"negative without digit before the point", u"-.5", -0.5},
    {"no digit behind the point", u"5.", 5},
    {"point alone", u".", 0},
    {"sign alone", u"-", 0},
    {"two signs", u"--1", 0},
    {"leading blanks and tabs", u" \t\r\n 12", 12},
    {"letters behind", u"12abc", 12},
    {"comma ends it", u"1,5", 1},
    {"second point ends it", u"1.2.3", 1.2},
    {"blank ends it", u"1 2", 1},
    {"blank behind the sign", u"- 1", 0},
    {"exponent", u"1e3", 1000},
    {"exponent with sign", u"25E-1", 2.5},
    {"exponent with plus", u"1E+2", 100},
    {"exponent without digits", u"1E", 1},
    {"exponent with sign only", u"1e+", 1},
    {"hexadecimal", u"0x10", 0},
    {"hexadecimal of elsewhere", u"&H10", 0},
    {"infinity is no number", u"inf", 0},
    {"nan is no number", u"nan", 0},
    {"digits of other scripts", u"\u0661\u0662", 0},
    {"full width digits", u"\uff11", 0},
    {"too small", u"1E-400", 0},
    {"too small, negative", u"-1E-400", 0},
    {"largest", u"1.7976931348623157E+308", 1.7976931348623157E+308},
    {"more digits than count", u"0.1000000000000000055511151231257827021181583404541015625", 0.1},
    {"zero with a huge exponent", u"0E+999999", 0},
    {"too small written in digits", u"0." + Text(400, u'0') + u"1", 0},
    {"too small written in digits, with exponent", u"0." + Text(400, u'0') + u"1E+5", 0},
    {"long digits brought back by the exponent", u"1" + Text(310, u'0') + u"E-310", 1},
};

using NumberPrefixOf = Rows<testing::Test, Row>;

TEST_P(NumberPrefixOf, IsTheNumberInFront) { EXPECT_EQ(number_prefix(GetParam().text), GetParam().number); }

INSTANTIATE_TEST_SUITE_P(, NumberPrefixOf, testing::ValuesIn(kRows), row_name);

TEST(NumberPrefix, HasNoNegativeZero) {
  EXPECT_FALSE(std::signbit(number_prefix(u"-0")));
  EXPECT_FALSE(std::signbit(number_prefix(u"-0.0E5")));
}

TEST(NumberPrefix, OverflowsBeyondADouble) {
  const Text kTooLarge[] = {u"1E+400", u"-1E+309", u"1" + Text(310, u'0'), u"1" + Text(700, u'0') + u"E-10"};
  for (const Text& text : kTooLarge) {
    SCOPED_TRACE(::testing::PrintToString(text.substr(0, 20)));
    try {
      const double number = number_prefix(text);
      ADD_FAILURE() << "read as " << number;
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.detail().number, failure_number::kOverflow);
    }
  }
}

struct Length {
  const char* name;
  TextView text;
  std::size_t units;
};

constexpr Length kLengths[] = {
    {"empty", u"", 0},
    {"letter", u"x", 0},
    {"sign alone", u"-", 0},
    {"point alone", u".", 0},
    {"sign and point", u"-.", 0},
    {"exponent behind a point alone", u".e5", 0},
    {"blank before", u" 1", 0},
    {"whole", u"12", 2},
    {"negative with decimals", u"-1.5x", 4},
    {"no digit before the point", u"+.5", 3},
    {"no digit behind the point", u"5.", 2},
    {"exponent", u"1e5", 3},
    {"exponent without digits", u"1e", 1},
    {"exponent with sign only", u"1e-", 1},
    {"negative exponent", u"1e-5z", 4},
    {"second point ends it", u"1.2.3", 3},
    {"comma ends it", u"1,5", 1},
    {"exponent with plus", u"1E+05", 5},
    {"hexadecimal", u"0x1", 1},
};

using NumberLength = Rows<testing::Test, Length>;

TEST_P(NumberLength, CountsTheUnitsOfTheNumber) { EXPECT_EQ(number_length(GetParam().text), GetParam().units); }

INSTANTIATE_TEST_SUITE_P(, NumberLength, testing::ValuesIn(kLengths), row_name);

}  // namespace
}  // namespace qvr::tests
