#include "session/value_convert.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "base/failure.h"
#include "support/describe.h"
#include "support/rows.h"
#include "support/test_thread.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

// The number of the failure that the body ends in; 0 for none.
std::int32_t failure_of(const std::function<void()>& body) {
  try {
    body();
    return 0;
  } catch (const RuntimeFailure& failure) {
    return failure.detail().number;
  }
}

Value nothing() { return ObjectRef(); }
Value two_items() { return Array{{Value(1), Value(2)}, 0, 1}; }

struct Row {
  const char* name;
  Value value;
  TextView text;
  double number;
};

const Row kRows[] = {
    {"Empty", Empty{}, u"", 0},
    {"Boolean true", true, u"True", -1},
    {"Boolean false", false, u"False", 0},
    {"Byte", std::uint8_t{255}, u"255", 255},
    {"Integer", std::int16_t{-32768}, u"-32768", -32768},
    {"Long", std::int32_t{2147483647}, u"2147483647", 2147483647},
    {"64 bits", std::int64_t{-5000000000}, u"-5000000000", -5000000000.0},
    {"Single", 0.1f, u"0.1", static_cast<double>(0.1f)},
    {"Double", 2.5, u"2.5", 2.5},
    {"Double of more digits than people read", 0.1 + 0.2, u"0.3", 0.1 + 0.2},
    {"Currency", Currency{-12345}, u"-1.2345", -1.2345},
    {"Decimal", Decimal{0, 0, 25, 2, false}, u"0.25", 0.25},
    {"Date", Date{36526}, u"01/01/2000", 36526},
    {"Date with time", Date{36526.75}, u"01/01/2000 18:00:00", 36526.75},
    {"String of a number", u"12.5", u"12.5", 12.5},
};

using ValueOfEachKind = Rows<testing::Test, Row>;

TEST_P(ValueOfEachKind, HasATextAndANumber) {
  TestThread thread;
  EXPECT_EQ(to_text(GetParam().value), Text(GetParam().text));
  EXPECT_EQ(to_number(GetParam().value), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(, ValueOfEachKind, testing::ValuesIn(kRows), row_name);

TEST(ValueConvert, NumbersAreWrittenAndReadByTheLocale) {
  TestThread thread;
  thread.locale.decimal = u',';
  EXPECT_EQ(to_text(2.5), u"2,5");
  EXPECT_EQ(to_text(0.1f), u"0,1");
  EXPECT_EQ(to_text(Currency{-5}), u"-0,0005");
  EXPECT_EQ(to_text(Decimal{0, 0, 15, 1, true}), u"-1,5");
  EXPECT_EQ(to_text(std::int32_t{1000}), u"1000");
  EXPECT_EQ(to_number(u"2,5"), 2.5);
  EXPECT_EQ(failure_of([] { to_number(u"2.5"); }), 13);
}

TEST(ValueConvert, DatesAreWrittenAndReadByTheLocale) {
  TestThread thread;
  thread.locale.day_first = false;
  thread.locale.date_separator = u'-';
  EXPECT_EQ(to_text(Date{36557}), u"02-01-2000");
  EXPECT_EQ(to_date(u"02-01-2000").days, 36557);
  thread.locale.day_first = true;
  EXPECT_EQ(to_date(u"02-01-2000").days, 36527);
}

TEST(ValueConvert, WhatHasNoTextFails) {
  TestThread thread;
  EXPECT_EQ(failure_of([] { to_text(Null{}); }), 94);
  EXPECT_EQ(failure_of([] { to_text(Missing{}); }), 13);
  EXPECT_EQ(failure_of([] { to_text(nothing()); }), 13);
  EXPECT_EQ(failure_of([] { to_text(two_items()); }), 13);
  EXPECT_EQ(to_text(ErrorValue{static_cast<std::int32_t>(0x800A000D)}), u"Error 13");
}

TEST(ValueConvert, WhatHasNoNumberFails) {
  TestThread thread;
  EXPECT_EQ(failure_of([] { to_number(Null{}); }), 94);
  EXPECT_EQ(failure_of([] { to_number(Missing{}); }), 13);
  EXPECT_EQ(failure_of([] { to_number(nothing()); }), 13);
  EXPECT_EQ(failure_of([] { to_number(two_items()); }), 13);
  EXPECT_EQ(failure_of([] { to_number(ErrorValue{13}); }), 13);
  EXPECT_EQ(failure_of([] { to_number(u""); }), 13);
  EXPECT_EQ(failure_of([] { to_number(u"abc"); }), 13);
  EXPECT_EQ(failure_of([] { to_number(u"12abc"); }), 13);
}

struct Truth {
  const char* name;
  Value value;
  bool truth;
};

const Truth kTruths[] = {
    {"Boolean", true, true},
    {"not", false, false},
    {"Empty", Empty{}, false},
    {"zero", std::int32_t{0}, false},
    {"one", std::int16_t{1}, true},
    {"minus one", -1.0, true},
    {"a little", 0.001, true},
    {"no amount", Currency{0}, false},
    {"day zero", Date{0}, false},
    {"another day", Date{1}, true},
    {"true in letters", u"tRuE", true},
    {"false in letters", u"FALSE", false},
    {"number in digits", u"2", true},
    {"zero in digits", u"0", false},
    {"Decimal", Decimal{0, 0, 1, 28, false}, true},
};

using TruthOf = Rows<testing::Test, Truth>;

TEST_P(TruthOf, IsWhatIsNotZero) {
  TestThread thread;
  EXPECT_EQ(to_truth(GetParam().value), GetParam().truth);
}

INSTANTIATE_TEST_SUITE_P(, TruthOf, testing::ValuesIn(kTruths), row_name);

TEST(ValueConvert, WhatHasNoTruthFails) {
  TestThread thread;
  EXPECT_EQ(failure_of([] { to_truth(Null{}); }), 94);
  EXPECT_EQ(failure_of([] { to_truth(u"yes"); }), 13);
  EXPECT_EQ(failure_of([] { to_truth(nothing()); }), 13);
}

struct Position {
  const char* name;
  Value value;
  std::int32_t number;
};

const Position kPositions[] = {
    {"Empty", Empty{}, 0},
    {"true", true, -1},
    {"false", false, 0},
    {"Byte", std::uint8_t{255}, 255},
    {"Integer", std::int16_t{-32768}, -32768},
    {"Long", INT32_MIN, INT32_MIN},
    {"64 bits", std::int64_t{2147483647}, INT32_MAX},
    {"below a half", 0.49999, 0},
    {"half to zero", 0.5, 0},
    {"half to two", 1.5, 2},
    {"half to two from above", 2.5, 2},
    {"half to four", 3.5, 4},
    {"half below zero", -0.5, 0},
    {"half to minus two", -1.5, -2},
    {"half to minus two from below", -2.5, -2},
    {"a little more than a half", 2.5000001, 3},
    {"Single", 6.5f, 6},
    {"Currency", Currency{25000}, 2},
    {"Currency above the half", Currency{25001}, 3},
    {"Decimal", Decimal{0, 0, 35, 1, true}, -4},
    {"Date", Date{36526.75}, 36527},
    {"text", u"12", 12},
    {"text of a half", u"-12.5", -12},
    {"text with an exponent", u"1.5e3", 1500},
    {"greatest before it overflows", 2147483647.49, INT32_MAX},
    {"least before it overflows", -2147483648.5, INT32_MIN},
};

using LongOf = Rows<testing::Test, Position>;

TEST_P(LongOf, IsTheNearestAndHalvesGoToTheEven) {
  TestThread thread;
  EXPECT_EQ(to_long(GetParam().value), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(, LongOf, testing::ValuesIn(kPositions), row_name);

const Position kNoLongs[] = {
    {"half beyond the greatest", 2147483647.5, failure_number::kOverflow},
    {"beyond the least", -2147483649.0, failure_number::kOverflow},
    {"huge", 1e300, failure_number::kOverflow},
    {"infinite", std::numeric_limits<double>::infinity(), failure_number::kOverflow},
    {"infinite below zero", -std::numeric_limits<double>::infinity(), failure_number::kOverflow},
    {"no number", std::nan(""), failure_number::kOverflow},
    {"64 bits", std::int64_t{2147483648}, failure_number::kOverflow},
    {"least of 64 bits", INT64_MIN, failure_number::kOverflow},
    {"Currency", Currency{INT64_MAX}, failure_number::kOverflow},
    {"Decimal", Decimal{1, 0, 0, 0, false}, failure_number::kOverflow},
    {"text beyond the greatest", u"2147483648", failure_number::kOverflow},
    {"text with an exponent", u"-1e10", failure_number::kOverflow},
    {"Null", Null{}, failure_number::kInvalidNull},
    {"missing", Missing{}, failure_number::kTypeMismatch},
    {"Nothing", nothing(), failure_number::kTypeMismatch},
    {"array", two_items(), failure_number::kTypeMismatch},
    {"error value", ErrorValue{1}, failure_number::kTypeMismatch},
    {"empty text", u"", failure_number::kTypeMismatch},
    {"letter", u"x", failure_number::kTypeMismatch},
    {"text that only begins as a number", u"1x", failure_number::kTypeMismatch},
};

using NoLong = Rows<testing::Test, Position>;

TEST_P(NoLong, FailsWithThisNumber) {
  TestThread thread;
  EXPECT_EQ(failure_of([] { to_long(GetParam().value); }), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(, NoLong, testing::ValuesIn(kNoLongs), row_name);

const Truth kNumeric[] = {
    {"Empty", Value(), true},
    {"true", true, true},
    {"false", false, true},
    {"Byte", std::uint8_t{0}, true},
    {"Integer", std::int16_t{-1}, true},
    {"Long", 7, true},
    {"64 bits", std::int64_t{1} << 40, true},
    {"Single", 0.1f, true},
    {"Double", 1e300, true},
    {"Double that is no number", std::nan(""), true},
    {"Currency", Currency{1}, true},
    {"Decimal", Decimal{1, 2, 3, 4, true}, true},
    {"text of zero", u"0", true},
    {"text below zero", u"-12.5", true},
    {"text with a plus sign", u"+1", true},
    {"text with an exponent", u"1e5", true},
    {"text without a digit before the point", u".5", true},
    {"Null", Null{}, false},
    {"missing", Missing{}, false},
    {"Date", Date{1}, false},
    {"error value", ErrorValue{1}, false},
    {"Nothing", nothing(), false},
    {"array", two_items(), false},
    {"empty text", u"", false},
    {"blank", u" ", false},
    {"letter", u"x", false},
    {"letter behind", u"1x", false},
    {"two numbers", u"1 2", false},
    {"sign alone", u"-", false},
    {"point alone", u".", false},
    {"exponent alone", u"e5", false},
    {"text of a truth value", u"True", false},
    {"text of a date", u"01/01/2000", false},
    {"full width digit", u"\uff11", false},
};

using IsNumeric = Rows<testing::Test, Truth>;

TEST_P(IsNumeric, AsAHostSaysIt) {
  TestThread thread;
  EXPECT_EQ(is_numeric(GetParam().value), GetParam().truth);
}

INSTANTIATE_TEST_SUITE_P(, IsNumeric, testing::ValuesIn(kNumeric), row_name);

TEST(ValueConvert, TheLocaleTellsWhichTextIsNumeric) {
  TestThread thread;
  thread.locale.decimal = u',';
  EXPECT_TRUE(is_numeric(u"1,5"));
  EXPECT_FALSE(is_numeric(u"1.5"));
  EXPECT_EQ(to_long(u"3,5"), 4);
  EXPECT_EQ(failure_of([] { to_long(u"3.5"); }), 13);
}

TEST(ValueConvert, DatesComeFromDatesTextsAndNumbers) {
  TestThread thread;
  EXPECT_EQ(to_date(Date{1.5}).days, 1.5);
  EXPECT_EQ(to_date(36526.25).days, 36526.25);
  EXPECT_EQ(to_date(std::int32_t{2}).days, 2);
  EXPECT_EQ(to_date(Empty{}).days, 0);
  EXPECT_EQ(to_date(u"31/12/1999").days, 36525);
  EXPECT_EQ(to_date(u"31/12/1999 06:00:00").days, 36525.25);
  EXPECT_EQ(failure_of([] { to_date(u"31/02/1999"); }), 13);
  EXPECT_EQ(failure_of([] { to_date(u"abc"); }), 13);
  EXPECT_EQ(failure_of([] { to_date(Null{}); }), 94);
  EXPECT_EQ(failure_of([] { to_date(two_items()); }), 13);
  EXPECT_EQ(failure_of([] { to_date(1e10); }), 6);
  EXPECT_EQ(failure_of([] { to_date(Date{-700000}); }), 6);
}

}  // namespace
}  // namespace qvr::tests
