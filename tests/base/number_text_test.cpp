#include "base/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

#include "base/failure.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

template <class Number>
struct Written {
  const char* name;
  Number number;
  TextView text;
};

constexpr Written<double> kDoubles[] = {
    {"zero", 0.0, u"0"},
    {"negative zero", -0.0, u"0"},
    {"one", 1, u"1"},
    {"minus one and a half", -1.5, u"-1.5"},
    {"tenth", 0.1, u"0.1"},
    {"quarter", 0.25, u"0.25"},
    {"minus a half", -0.5, u"-0.5"},
    {"two and a half", 2.5, u"2.5"},
    {"hundred", 100, u"100"},
    {"seven digits and three decimals", 1234567.875, u"1234567.875"},
    {"sum of tenths", 0.1 + 0.2, u"0.30000000000000004"},
    {"third", 1.0 / 3, u"0.3333333333333333"},
    {"thousandth", 0.001, u"0.001"},
    {"smallest power of ten without exponent", 0.00001, u"0.00001"},
    {"a little more than that", 0.000012345, u"0.000012345"},
    {"a little less than that", 9.99e-6, u"9.99E-06"},
    {"exponent of one digit has two", 1e-7, u"1E-07"},
    {"largest without exponent", 999999999999999.0, u"999999999999999"},
    {"first with exponent", 1e15, u"1E+15"},
    {"first with exponent below zero", -1e15, u"-1E+15"},
    {"seventeen digits", 123456789012345680.0, u"1.2345678901234568E+17"},
    {"last of the exact whole numbers", 9007199254740992.0, u"9.007199254740992E+15"},
    {"huge", 1e300, u"1E+300"},
    {"tiny", 1.5e-300, u"1.5E-300"},
    {"smallest", 5e-324, u"5E-324"},
    {"largest", std::numeric_limits<double>::max(), u"1.7976931348623157E+308"},
    {"smallest normal", std::numeric_limits<double>::min(), u"2.2250738585072014E-308"},
};

using ShortestDouble = Rows<testing::Test, Written<double>>;

TEST_P(ShortestDouble, HasTheDigitsThatReadBack) {
  EXPECT_EQ(shortest_number(GetParam().number), Text(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(, ShortestDouble, testing::ValuesIn(kDoubles), row_name);

constexpr Written<float> kSingles[] = {
    {"zero", 0.0f, u"0"},
    {"negative zero", -0.0f, u"0"},
    {"tenth", 0.1f, u"0.1"},
    {"minus two and a half", -2.5f, u"-2.5"},
    {"third", 1.0f / 3, u"0.33333334"},
    {"last of the exact whole numbers", 16777216.0f, u"16777216"},
    {"smallest power of ten without exponent", 0.00001f, u"0.00001"},
    {"millionth", 1e-6f, u"1E-06"},
    {"first with exponent", 1e15f, u"1E+15"},
    {"large", 1e20f, u"1E+20"},
    {"largest", std::numeric_limits<float>::max(), u"3.4028235E+38"},
    {"smallest", 1e-45f, u"1E-45"},
};

using ShortestSingle = Rows<testing::Test, Written<float>>;

TEST_P(ShortestSingle, HasTheDigitsOfItsOwnPrecision) {
  EXPECT_EQ(shortest_number(GetParam().number), Text(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(, ShortestSingle, testing::ValuesIn(kSingles), row_name);

template <class Float>
Float read_back(const Text& text) {
  const std::string narrow(text.begin(), text.end());
  Float number = 0;
  const auto [end, error] = std::from_chars(narrow.data(), narrow.data() + narrow.size(), number);
  EXPECT_TRUE(error == std::errc() && end == narrow.data() + narrow.size()) << narrow;
  return number;
}

// Digits without sign, point, exponent and the zeros at either end.
std::size_t significant_digits(const Text& text) {
  std::string digits;
  for (char16_t unit : text.substr(0, text.find(u'E'))) {
    if (unit >= u'0' && unit <= u'9') digits.push_back(static_cast<char>(unit));
  }
  const std::size_t first = digits.find_first_not_of('0');
  return first == std::string::npos ? 0 : digits.find_last_not_of('0') - first + 1;
}

template <class Float, class Bits>
void expect_shortest_for_random(std::uint32_t seed, int rounds) {
  std::mt19937_64 random(seed);
  for (int round = 0; round < rounds; ++round) {
    const auto number = std::bit_cast<Float>(static_cast<Bits>(random()));
    if (!std::isfinite(number) || number == 0) continue;
    const Text text = shortest_number(number);
    ASSERT_EQ(read_back<Float>(text), number) << "round " << round;
    // A whole number in plain digits shows all digits before its point, and a single may need fewer to be told apart.
    if (text.find_first_of(u".E") == Text::npos) continue;
    const std::size_t digits = significant_digits(text);
    if (digits < 2) continue;
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::scientific,
                                   static_cast<int>(digits) - 2)
                         .ptr;
    Float shorter = 0;
    std::from_chars(buffer, end, shorter);
    ASSERT_NE(shorter, number) << "one digit less would do: " << std::string(buffer, end);
  }
}

TEST(ShortestNumber, IsExactAndHasNoDigitTooManyForRandomDoubles) {
  expect_shortest_for_random<double, std::uint64_t>(11, 50000);
}

TEST(ShortestNumber, IsExactAndHasNoDigitTooManyForRandomSingles) {
  expect_shortest_for_random<float, std::uint32_t>(12, 50000);
}

TEST(ShortestNumber, RefusesWhatIsNotFinite) {
  for (double number : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                        std::numeric_limits<double>::quiet_NaN()}) {
    SCOPED_TRACE(number);
    EXPECT_THROW(shortest_number(number), RuntimeFailure);
    EXPECT_THROW(shortest_number(static_cast<float>(number)), RuntimeFailure);
    EXPECT_THROW(rounded_number(number, 15), RuntimeFailure);
  }
}

constexpr Written<std::int64_t> kAmounts[] = {
    {"zero", 0, u"0"},
    {"one", 10000, u"1"},
    {"four decimals", 12345, u"1.2345"},
    {"three decimals", 12340, u"1.234"},
    {"minus two and a half", -25000, u"-2.5"},
    {"smallest", 1, u"0.0001"},
    {"smallest below zero", -1, u"-0.0001"},
    {"two decimals", 500, u"0.05"},
    {"hundred", 1000000, u"100"},
    {"largest", INT64_MAX, u"922337203685477.5807"},
    {"least", INT64_MIN, u"-922337203685477.5808"},
};

using ShortestAmount = Rows<testing::Test, Written<std::int64_t>>;

TEST_P(ShortestAmount, HasUpToFourDecimals) {
  EXPECT_EQ(shortest_number(Currency{GetParam().number}), Text(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(, ShortestAmount, testing::ValuesIn(kAmounts), row_name);

constexpr std::uint32_t kAll = 0xFFFFFFFF;

constexpr Written<Decimal> kDecimals[] = {
    {"zero", {0, 0, 0, 0, false}, u"0"},
    {"negative zero with decimals", {0, 0, 0, 5, true}, u"0"},
    {"one", {0, 0, 1, 0, false}, u"1"},
    {"one with two decimals", {0, 0, 100, 2, false}, u"1"},
    {"hundred", {0, 0, 100, 0, true}, u"-100"},
    {"quarter", {0, 0, 25, 2, false}, u"0.25"},
    {"middle part", {0, 1, 0, 0, false}, u"4294967296"},
    {"high part", {1, 0, 0, 0, false}, u"18446744073709551616"},
    {"largest", {kAll, kAll, kAll, 0, false}, u"79228162514264337593543950335"},
    {"most negative", {kAll, kAll, kAll, 0, true}, u"-79228162514264337593543950335"},
    {"largest, one decimal", {kAll, kAll, kAll, 1, false}, u"7922816251426433759354395033.5"},
    {"largest, all decimals", {kAll, kAll, kAll, 28, false}, u"7.9228162514264337593543950335"},
    {"smallest", {0, 0, 1, 28, true}, u"-0.0000000000000000000000000001"},
};

using ShortestDecimal = Rows<testing::Test, Written<Decimal>>;

TEST_P(ShortestDecimal, HasNoZerosBehindItsDecimals) {
  EXPECT_EQ(shortest_number(GetParam().number), Text(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(, ShortestDecimal, testing::ValuesIn(kDecimals), row_name);

struct Rounded {
  const char* name;
  double number;
  int digits;
  TextView text;
};

constexpr Rounded kRounded[] = {
    {"third", 1.0 / 3, 15, u"0.333333333333333"},
    {"sum of tenths", 0.1 + 0.2, 15, u"0.3"},
    {"rounded up to a whole number", 1234567.8, 7, u"1234568"},
    {"negative zero", -0.0, 15, u"0"},
    {"exponent", 1e20, 15, u"1E+20"},
    {"all fifteen digits", 123456789012345.0, 15, u"123456789012345"},
    {"fewer digits than asked", 2.5, 7, u"2.5"},
    {"minus hundred", -100, 7, u"-100"},
};

using RoundedNumber = Rows<testing::Test, Rounded>;

TEST_P(RoundedNumber, KeepsThatManyDigits) {
  EXPECT_EQ(rounded_number(GetParam().number, GetParam().digits), Text(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(, RoundedNumber, testing::ValuesIn(kRounded), row_name);

TEST(NumberOf, ReadsAmountsAndDecimals) {
  EXPECT_EQ(number_of(Currency{12345}), 1.2345);
  EXPECT_EQ(number_of(Currency{-1}), -0.0001);
  EXPECT_EQ(number_of(Decimal{0, 0, 1, 1, false}), 0.1);
  EXPECT_EQ(number_of(Decimal{0, 0, 25, 1, true}), -2.5);
  EXPECT_EQ(number_of(Decimal{1, 0, 0, 0, false}), 18446744073709551616.0);
  EXPECT_EQ(number_of(Decimal{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0, false}), 79228162514264337593543950335.0);
}

}  // namespace
}  // namespace qvr::tests
