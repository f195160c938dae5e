#include "base/float_digits.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace qvr::tests {
namespace {

// What the standard library writes in its scientific form, taken apart.
DecimalDigits taken_apart(const char* first, const char* last) {
  DecimalDigits result;
  const std::string_view text(first, static_cast<std::size_t>(last - first));
  const std::size_t exponent_at = text.find('e');
  for (const char unit : text.substr(0, exponent_at)) {
    if (unit != '-' && unit != '.') result.digits.push_back(unit);
  }
  result.digits.resize(result.digits.find_last_not_of('0') + 1);
  const char* exponent = first + exponent_at + (text[exponent_at + 1] == '+' ? 2 : 1);
  std::from_chars(exponent, last, result.magnitude);
  return result;
}

template <class Float, class... Precision>
DecimalDigits expected_digits(Float number, Precision... precision) {
  char buffer[1200];
  const auto end = std::to_chars(buffer, std::end(buffer), number, std::chars_format::scientific, precision...).ptr;
  return taken_apart(buffer, end);
}

void expect_equal(const DecimalDigits& found, const DecimalDigits& expected) {
  EXPECT_EQ(found.digits, expected.digits);
  EXPECT_EQ(found.magnitude, expected.magnitude);
}

// Every power of two with its neighbours, where the neighbours' distance changes, and every power of ten.
template <class Float>
std::vector<Float> edges() {
  using Limits = std::numeric_limits<Float>;
  std::vector<Float> numbers;
  const auto add_with_neighbours = [&numbers](Float number) {
    for (const Float near : {std::nextafter(number, Float(0)), number, std::nextafter(number, Limits::infinity())}) {
      if (near != 0 && std::isfinite(near)) numbers.push_back(near);
    }
  };
  for (int power = Limits::min_exponent - Limits::digits; power < Limits::max_exponent; ++power) {
    add_with_neighbours(std::ldexp(Float(1), power));
  }
  for (int power = Limits::min_exponent10 - Limits::digits10 - 1; power <= Limits::max_exponent10; ++power) {
    add_with_neighbours(static_cast<Float>(std::pow(10.0L, power)));
  }
  add_with_neighbours(Limits::max());
  return numbers;
}

// Random patterns of bits, and numbers with few digits as people have them.
std::vector<double> random_doubles(std::uint32_t seed, int count) {
  std::mt19937_64 random(seed);
  std::vector<double> numbers;
  while (numbers.size() < static_cast<std::size_t>(count)) {
    const auto bits = std::bit_cast<double>(random());
    if (std::isfinite(bits) && bits != 0) numbers.push_back(bits);
    numbers.push_back(static_cast<double>(random() % 100'000'000 + 1) / std::pow(10.0, static_cast<int>(random() % 9)));
  }
  return numbers;
}

template <class Float>
void expect_shortest(const std::vector<Float>& numbers) {
  for (const Float number : numbers) {
    SCOPED_TRACE(number);
    expect_equal(shortest_digits(number), expected_digits(number));
    if (testing::Test::HasFailure()) return;
  }
}

TEST(ShortestDigits, AreThoseOfTheStandardLibraryAtTheEdges) {
  expect_shortest(edges<double>());
  expect_shortest(edges<float>());
}

TEST(ShortestDigits, AreThoseOfTheStandardLibraryForRandomNumbers) { expect_shortest(random_doubles(21, 20000)); }

TEST(RoundedDigits, AreThoseOfTheStandardLibrary) {
  std::vector<double> numbers = random_doubles(22, 2000);
  const std::vector<double> more = edges<double>();
  numbers.insert(numbers.end(), more.begin(), more.end());
  for (double number : {0.5, 1.5, 2.5, 12.5, 13.5, 9.5, 99.5, 0.125, 0.375, 999.5}) numbers.push_back(number);
  for (const double number : numbers) {
    for (const int most : {1, 2, 3, 7, 15, 17}) {
      SCOPED_TRACE(number);
      expect_equal(rounded_digits(number, most), expected_digits(number, most - 1));
    }
    if (HasFailure()) return;
  }
}

void expect_read_as(const std::string& digits, int magnitude, double expected) {
  SCOPED_TRACE(digits + " " + std::to_string(magnitude));
  const auto found = nearest_double({digits, magnitude});
  ASSERT_TRUE(found);
  EXPECT_EQ(std::bit_cast<std::uint64_t>(*found), std::bit_cast<std::uint64_t>(expected));
}

TEST(NearestDouble, ReadsBackWhatWasWritten) {
  std::vector<double> numbers = random_doubles(23, 20000);
  const std::vector<double> more = edges<double>();
  numbers.insert(numbers.end(), more.begin(), more.end());
  for (const double number : numbers) {
    const DecimalDigits written = shortest_digits(number);
    expect_read_as(written.digits, written.magnitude, std::fabs(number));
    if (HasFailure()) return;
  }
}

// The exact digits of the middle between two neighbours, and what is a trifle more or less, far behind.
TEST(NearestDouble, DecidesHalfWayExactly) {
  std::mt19937_64 random(24);
  for (int round = 0; round < 3000; ++round) {
    const double number = std::fabs(std::bit_cast<double>(random()));
    const double above = std::nextafter(number, std::numeric_limits<double>::infinity());
    if (!std::isfinite(number) || !std::isfinite(above) || number == 0) continue;
    const long double middle = (static_cast<long double>(number) + above) / 2;  // one bit more is enough
    DecimalDigits digits = expected_digits(middle, 1100);
    const bool even = std::bit_cast<std::uint64_t>(number) % 2 == 0;
    expect_read_as(digits.digits, digits.magnitude, even ? number : above);
    expect_read_as(digits.digits + std::string(900, '0') + "1", digits.magnitude, above);
    --digits.digits.back();
    expect_read_as(digits.digits + std::string(900, '9'), digits.magnitude, number);
    if (HasFailure()) return;
  }
}

TEST(NearestDouble, ReadsAnyDigitsAsTheStandardLibraryDoes) {
  std::mt19937_64 random(25);
  for (int round = 0; round < 20000; ++round) {
    std::string digits(static_cast<std::size_t>(random() % 40 + 1), '0');
    for (char& unit : digits) unit = static_cast<char>('1' + random() % 9);
    const int magnitude = static_cast<int>(random() % 640) - 330;
    const std::string text = digits.substr(0, 1) + "." + digits.substr(1) + "e" + std::to_string(magnitude);
    double expected = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), expected);
    if (error == std::errc::result_out_of_range) {
      ASSERT_EQ(nearest_double({digits, magnitude}), magnitude > 0 ? std::optional<double>() : 0.0) << text;
    } else {
      expect_read_as(digits, magnitude, expected);
    }
    if (HasFailure()) return;
  }
}

TEST(NearestDouble, EndsAtTheLargestAndTheSmallest) {
  EXPECT_EQ(nearest_double({"17976931348623157", 308}), std::numeric_limits<double>::max());
  // Half way to what would be the next power of two.
  EXPECT_EQ(nearest_double({"17976931348623158079", 308}), std::numeric_limits<double>::max());
  EXPECT_EQ(nearest_double({"17976931348623158080", 308}), std::nullopt);
  EXPECT_EQ(nearest_double({"1", 309}), std::nullopt);
  EXPECT_EQ(nearest_double({"1", 1'000'000}), std::nullopt);
  EXPECT_EQ(nearest_double({"5", -324}), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(nearest_double({"2470328229206232720", -324}), 0.0);
  EXPECT_EQ(nearest_double({"2470328229206232721", -324}), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(nearest_double({"9", -325}), 0.0);
  EXPECT_EQ(nearest_double({"1", -1'000'000}), 0.0);
  EXPECT_EQ(nearest_double({"", 0}), 0.0);
}

}  // namespace
}  // namespace qvr::tests
