// Numbers as literals: a blank or "-" in front, "." wherever the program runs, and no digit lost or too many.
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

#include "base/number_text.h"
#include "dialect/dialect_fixture.h"
#include "dialect/literals.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using NumbersInSqlTest = DialectTest;

struct NumberRow {
  const char* name;
  Value value;
  Text literal;
  Traces traced = {};
};

template <class Float>
using Limits = std::numeric_limits<Float>;

std::vector<NumberRow> rows() {
  constexpr std::uint32_t kAll = 0xFFFFFFFF;
  return {
      {"Integer 5", std::int16_t{5}, u" 5"},
      {"Integer, least", std::int16_t{-32768}, u"-32768"},
      {"Byte 0", std::uint8_t{0}, u" 0"},
      {"Byte, greatest", std::uint8_t{255}, u" 255"},
      {"Long 12", 12, u" 12"},
      {"Long, least", INT32_MIN, u"-2147483648"},
      {"Long, greatest", INT32_MAX, u" 2147483647"},
      {"Long, no thousands separators", 1234567, u" 1234567"},
      {"Double, minus 2.5", -2.5, u"-2.5"},
      {"Double, minus 3.5", -3.5, u"-3.5"},
      {"Double, a quarter", 0.25, u" 0.25"},
      {"Double, minus a quarter", -0.25, u"-0.25"},
      {"Double 0", 0.0, u" 0"},
      {"Double, negative zero", -0.0, u" 0"},
      {"Double, a tenth", 0.1, u" 0.1"},
      {"Double, a sum that is not 0.3", 0.1 + 0.2, u" 0.30000000000000004"},
      {"Double, a third", 1.0 / 3, u" 0.3333333333333333"},
      {"Double 1E+300", 1e300, u" 1E+300"},
      {"Double, minus 1E+300", -1e300, u"-1E+300"},
      {"Double, greatest", Limits<double>::max(), u" 1.7976931348623157E+308"},
      {"Double, smallest", Limits<double>::denorm_min(), u" 5E-324"},
      {"Single, a tenth", 0.1f, u" 0.1"},
      {"Single, a tenth as a Double", static_cast<double>(0.1f), u" 0.10000000149011612"},
      {"Single, minus 2.5", -2.5f, u"-2.5"},
      {"Single, a third", 1.0f / 3, u" 0.33333334"},
      {"Single, last whole number of all", 16777216.0f, u" 16777216"},
      {"Single, greatest", Limits<float>::max(), u" 3.4028235E+38"},
      {"Single, smallest", Limits<float>::denorm_min(), u" 1E-45"},
      {"Currency 2.5", Currency{25000}, u" 2.5"},
      {"Currency, last digit", Currency{1}, u" 0.0001"},
      {"Currency, last digit below zero", Currency{-1}, u"-0.0001"},
      {"Currency, greatest", Currency{INT64_MAX}, u" 922337203685477.5807"},
      {"Currency, least", Currency{INT64_MIN}, u"-922337203685477.5808"},
      {"Decimal 12", Decimal{0, 0, 12, 0, false}, u" 12"},
      {"Decimal, negative zero", Decimal{0, 0, 0, 2, true}, u" 0"},
      {"Decimal, greatest", Decimal{kAll, kAll, kAll, 0, false}, u" 79228162514264337593543950335"},
      {"Decimal, least", Decimal{kAll, kAll, kAll, 0, true}, u"-79228162514264337593543950335"},
      {"Decimal, all decimals", Decimal{kAll, kAll, kAll, 28, true}, u"-7.9228162514264337593543950335"},
      {"Decimal, last digit", Decimal{0, 0, 1, 28, false}, u" 0.0000000000000000000000000001"},
      // No literal: infinities, NaN and 64-bit integers.
      {"Double, infinite", Limits<double>::infinity(), u"Null"},
      {"Double, minus infinite", -Limits<double>::infinity(), u"Null"},
      {"Double, no number", Limits<double>::quiet_NaN(), u"Null"},
      {"Single, infinite", Limits<float>::infinity(), u"Null"},
      {"Single, no number", Limits<float>::quiet_NaN(), u"Null"},
      {"64 bits", std::int64_t{5}, u"Null",
       Traces(4, u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: LongLong")},
      {"64 bits, unsigned", std::uint64_t{5}, u"Null",
       Traces(4, u"QVRcfp.ExpSQL: 13 Tipo de campo inesperado en ExpSQL: ULongLong")},
  };
}

class EveryNumberInSql : public Rows<DialectTest, NumberRow> {
 protected:
  void expect_written() {
    expect_each(all_engines(GetParam().literal),
                [](Engine engine) { return dialect::ExpSQL(engine, GetParam().value); });
    EXPECT_EQ(traced(), GetParam().traced);
  }
};

TEST_P(EveryNumberInSql, IsWrittenAlikeForEveryEngine) { expect_written(); }

TEST_P(EveryNumberInSql, DoesNotFollowTheLocale) {
  thread.locale.decimal = u',';
  thread.locale.date_separator = u'-';
  thread.locale.day_first = false;
  expect_written();
}

INSTANTIATE_TEST_SUITE_P(, EveryNumberInSql, ::testing::ValuesIn(rows()), row_name);

// The number in a literal, which has a sign or a blank in front.
template <class Float>
Float read_back(const Text& literal) {
  const std::string narrow(literal.begin(), literal.end());
  const char* first = narrow.data() + (narrow.starts_with(' ') ? 1 : 0);
  Float number = Limits<Float>::quiet_NaN();
  const auto [end, error] = std::from_chars(first, narrow.data() + narrow.size(), number);
  const bool whole = error == std::errc() && end == narrow.data() + narrow.size() && *first != ' ';
  return whole && (narrow[0] == ' ') == (number >= 0) ? number : Limits<Float>::quiet_NaN();
}

// Digits other than the zeros at either end.
std::size_t significant_digits(const Text& literal) {
  std::string digits;
  for (const char16_t unit : literal.substr(0, literal.find(u'E'))) {
    if (unit >= u'0' && unit <= u'9') digits.push_back(static_cast<char>(unit));
  }
  const std::size_t first = digits.find_first_not_of('0');
  return first == std::string::npos ? 0 : digits.find_last_not_of('0') - first + 1;
}

// What the number reads as when it is written with so many digits.
float read_with(std::size_t digits, float number) {
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::scientific,
                                 static_cast<int>(digits) - 1)
                       .ptr;
  float shorter = Limits<float>::quiet_NaN();
  std::from_chars(buffer, end, shorter);
  return shorter;
}

void expect_single_reads_back(std::uint32_t bits) {
  const auto number = std::bit_cast<float>(bits);
  if (!std::isfinite(number)) return;
  const Text literal = dialect::ExpSQL(Engine::SqlServer, number);
  if (read_back<float>(literal) != number) ADD_FAILURE() << "bits " << bits << " are" << to_utf8(literal);
}

// A sample of all bit patterns; `float_text_sweep 1` takes every one.
TEST_F(NumbersInSqlTest, SinglesReadBackExactly) {
  for (std::uint64_t bits = 0; bits <= UINT32_MAX; bits += QVR_TESTS_FLOAT_STEP) {
    expect_single_reads_back(static_cast<std::uint32_t>(bits));
    ASSERT_FALSE(HasFailure());
  }
}

TEST_F(NumbersInSqlTest, SinglesAtTheEdgesOfTheirExponentsReadBackExactly) {
  constexpr std::uint32_t kFractions[] = {0, 1, 2, 3, 0x3FFFFF, 0x400000, 0x400001, 0x555555, 0x7FFFFE, 0x7FFFFF};
  for (std::uint32_t exponent = 0; exponent < 255; ++exponent) {
    for (const std::uint32_t fraction : kFractions) {
      expect_single_reads_back(exponent << 23 | fraction);
      expect_single_reads_back(0x80000000U | exponent << 23 | fraction);
    }
    ASSERT_FALSE(HasFailure()) << "exponent " << exponent;
  }
}

// Whole numbers in plain digits show all digits before the point, so only others can have one too many.
TEST_F(NumbersInSqlTest, SinglesHaveNoDigitTooMany) {
  std::mt19937_64 random(21);
  int compared = 0;
  for (int round = 0; round < 20000; ++round) {
    const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    if (!std::isfinite(number)) continue;
    const Text literal = dialect::ExpSQL(Engine::Jet, number);
    const std::size_t digits = significant_digits(literal);
    ASSERT_LE(digits, 9U) << to_utf8(literal);
    if (literal.find_first_of(u".E") == Text::npos) continue;
    for (std::size_t fewer = 1; fewer < digits; ++fewer) {
      ASSERT_NE(read_with(fewer, number), number) << fewer << " digits would do for" << to_utf8(literal);
      ++compared;
    }
  }
  EXPECT_GT(compared, 10000);
}

TEST_F(NumbersInSqlTest, DoublesReadBackExactly) {
  std::mt19937_64 random(22);
  for (int round = 0; round < 200000; ++round) {
    const auto number = std::bit_cast<double>(random());
    if (!std::isfinite(number)) continue;
    const Text literal = dialect::ExpSQL(Engine::Oracle, number);
    ASSERT_EQ(read_back<double>(literal), number) << "round " << round << ":" << to_utf8(literal);
  }
}

// Amounts, coordinates and the like: random bits nearly never give one that is written without an exponent.
TEST_F(NumbersInSqlTest, DoublesOfEverydaySizeReadBackExactly) {
  std::mt19937_64 random(23);
  for (int round = 0; round < 50000; ++round) {
    const double number = std::ldexp(static_cast<double>(random() >> 11), -static_cast<int>(random() % 60));
    const Text literal = dialect::ExpSQL(Engine::Oracle, -number);
    ASSERT_EQ(read_back<double>(literal), -number) << "round " << round << ":" << to_utf8(literal);
  }
}

}  // namespace
}  // namespace qvr::tests
