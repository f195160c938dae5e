#include "base/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

#include "base/failure.h"

namespace qvr::tests {
namespace {

TEST(ShortestNumber, WritesDoubles) {
  struct Row {
    double number;
    TextView text;
  };
  constexpr Row kRows[] = {
      {0.0, u"0"},
      {-0.0, u"0"},
      {1, u"1"},
      {-1.5, u"-1.5"},
      {0.1, u"0.1"},
      {0.25, u"0.25"},
      {-0.5, u"-0.5"},
      {2.5, u"2.5"},
      {100, u"100"},
      {1234567.875, u"1234567.875"},
      {0.1 + 0.2, u"0.30000000000000004"},
      {1.0 / 3, u"0.3333333333333333"},
      {0.001, u"0.001"},
      {0.00001, u"0.00001"},
      {0.000012345, u"0.000012345"},
      {9.99e-6, u"9.99E-06"},
      {1e-7, u"1E-07"},
      {999999999999999.0, u"999999999999999"},
      {1e15, u"1E+15"},
      {-1e15, u"-1E+15"},
      {123456789012345680.0, u"1.2345678901234568E+17"},
      {9007199254740992.0, u"9.007199254740992E+15"},
      {1e300, u"1E+300"},
      {1.5e-300, u"1.5E-300"},
      {5e-324, u"5E-324"},
      {std::numeric_limits<double>::max(), u"1.7976931348623157E+308"},
      {std::numeric_limits<double>::min(), u"2.2250738585072014E-308"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.number);
    EXPECT_EQ(shortest_number(row.number), Text(row.text));
  }
}

TEST(ShortestNumber, WritesSinglesWithTheirOwnPrecision) {
  struct Row {
    float number;
    TextView text;
  };
  constexpr Row kRows[] = {
      {0.0f, u"0"},
      {-0.0f, u"0"},
      {0.1f, u"0.1"},
      {-2.5f, u"-2.5"},
      {1.0f / 3, u"0.33333334"},
      {16777216.0f, u"16777216"},
      {0.00001f, u"0.00001"},
      {1e-6f, u"1E-06"},
      {1e15f, u"1E+15"},
      {1e20f, u"1E+20"},
      {std::numeric_limits<float>::max(), u"3.4028235E+38"},
      {1e-45f, u"1E-45"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.number);
    EXPECT_EQ(shortest_number(row.number), Text(row.text));
  }
}

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

TEST(ShortestNumber, WritesAmounts) {
  struct Row {
    std::int64_t scaled;
    TextView text;
  };
  constexpr Row kRows[] = {
      {0, u"0"},
      {10000, u"1"},
      {12345, u"1.2345"},
      {12340, u"1.234"},
      {-25000, u"-2.5"},
      {1, u"0.0001"},
      {-1, u"-0.0001"},
      {500, u"0.05"},
      {1000000, u"100"},
      {INT64_MAX, u"922337203685477.5807"},
      {INT64_MIN, u"-922337203685477.5808"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.scaled);
    EXPECT_EQ(shortest_number(Currency{row.scaled}), Text(row.text));
  }
}

TEST(ShortestNumber, WritesDecimals) {
  constexpr std::uint32_t kAll = 0xFFFFFFFF;
  struct Row {
    const char* name;
    Decimal number;
    TextView text;
  };
  constexpr Row kRows[] = {
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
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(shortest_number(row.number), Text(row.text));
  }
}

TEST(RoundedNumber, KeepsThatManyDigits) {
  struct Row {
    double number;
    int digits;
    TextView text;
  };
  constexpr Row kRows[] = {
      {1.0 / 3, 15, u"0.333333333333333"},
      {0.1 + 0.2, 15, u"0.3"},
      {1234567.8, 7, u"1234568"},
      {-0.0, 15, u"0"},
      {1e20, 15, u"1E+20"},
      {123456789012345.0, 15, u"123456789012345"},
      {2.5, 7, u"2.5"},
      {-100, 7, u"-100"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.number);
    EXPECT_EQ(rounded_number(row.number, row.digits), Text(row.text));
  }
}

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
