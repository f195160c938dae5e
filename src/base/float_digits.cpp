#include "base/float_digits.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

#include "base/big_number.h"

namespace qvr {
namespace {

// mantissa * 2^exponent.
struct BinaryParts {
  std::uint64_t mantissa;
  int exponent;
  bool nearer_below;  // the next number below is nearer than the one above
};

template <class Bits, class Float>
BinaryParts parts_of(Float number) {
  constexpr int kStored = std::numeric_limits<Float>::digits - 1;
  constexpr Bits kHidden = Bits(1) << kStored;
  const Bits bits = std::bit_cast<Bits>(number);
  const Bits stored = bits & (kHidden - 1);
  const int biased = static_cast<int>(bits >> kStored & (std::numeric_limits<Float>::max_exponent * 2 - 1));
  constexpr int kLowest = std::numeric_limits<Float>::min_exponent - 1 - kStored;
  if (biased == 0) return {stored, kLowest, false};
  return {stored | kHidden, kLowest + biased - 1, stored == 0 && biased > 1};
}

// Rounded down, for every exponent that there is: no power of two is as near to one of ten as this factor is wrong.
int decimal_magnitude(const BinaryParts& number) {
  const int power_of_two = 63 - std::countl_zero(number.mantissa) + number.exponent;
  return power_of_two * 78913 >> 18;
}

// value / unit is the number divided by 10^magnitude. A value and a unit of the whole number are both shifted left
// by `spare` bits, so that halves and quarters of the last binary place are whole too.
struct Fraction {
  Fraction(const BinaryParts& number, int power_of_ten, int spare)
      : value(number.mantissa), unit(1), magnitude(power_of_ten) {
    value.shift_left(spare + (number.exponent > 0 ? number.exponent : 0));
    unit.shift_left(spare + (number.exponent < 0 ? -number.exponent : 0));
    if (magnitude > 0) unit.multiply_by_power_of_ten(magnitude);
    if (magnitude < 0) value.multiply_by_power_of_ten(-magnitude);
  }

  BigNumber value, unit;
  int magnitude;
};

char digit(int number) { return static_cast<char>('0' + number); }

void trim_zeros(std::string& digits) { digits.resize(digits.find_last_not_of('0') + 1); }

BigNumber sum(const BigNumber& one, const BigNumber& other) {
  BigNumber result = one;
  result.add(other);
  return result;
}

// Half way: the even digit.
bool rounds_up(const BigNumber& rest, const BigNumber& unit, int last_digit) {
  const auto order = sum(rest, rest) <=> unit;
  return order > 0 || (order == 0 && last_digit % 2 != 0);
}

// Writes digits until what has been written, or the same with the last digit one higher, is nearer to the number than
// to its neighbours; where a neighbour's share begins counts as the number's own when its mantissa is even.
DecimalDigits shortest_of(const BinaryParts& number) {
  Fraction fraction(number, decimal_magnitude(number), 2);
  auto& [value, unit, magnitude] = fraction;
  BigNumber below(number.nearer_below ? 1 : 2);
  BigNumber above(2);
  for (BigNumber* share : {&below, &above}) {
    if (number.exponent > 0) share->shift_left(number.exponent);
    if (magnitude < 0) share->multiply_by_power_of_ten(-magnitude);
  }
  const bool with_bounds = number.mantissa % 2 == 0;
  const auto reaches = [with_bounds](const BigNumber& one, const BigNumber& other) {
    return with_bounds ? one >= other : one > other;
  };

  BigNumber ten_units = unit;
  ten_units.multiply(10);
  if (reaches(sum(value, above), ten_units)) {
    unit.multiply(10);
    ++magnitude;
  }
  DecimalDigits result{{}, magnitude};
  for (;;) {
    const int next = value.divide(unit);
    const bool low_enough = reaches(below, value);
    const bool high_enough = reaches(sum(value, above), unit);
    if (low_enough || high_enough) {
      const bool up = low_enough && high_enough ? rounds_up(value, unit, next) : high_enough;
      result.digits.push_back(digit(next + (up ? 1 : 0)));
      return result;
    }
    result.digits.push_back(digit(next));
    for (BigNumber* part : {&value, &below, &above}) part->multiply(10);
  }
}

// One more in the last place; "99" becomes "1" of the next magnitude.
void round_up(DecimalDigits& number) {
  const std::size_t last = number.digits.find_last_not_of('9');
  if (last == std::string::npos) {
    number.digits = "1";
    ++number.magnitude;
    return;
  }
  ++number.digits[last];
  number.digits.resize(last + 1);
}

constexpr int kMantissa = std::numeric_limits<double>::digits;
constexpr int kLowest = std::numeric_limits<double>::min_exponent - kMantissa;  // the last binary place of the smallest

BigNumber whole_number(std::string_view digits) {
  BigNumber number(0);
  for (const char next : digits) number.multiply_and_add(10, static_cast<std::uint32_t>(next - '0'));
  return number;
}

// The quotient to the nearest whole number, half way the even one. It is below 2^kMantissa, and the divisor comes
// multiplied by that.
std::uint64_t rounded_quotient(BigNumber& rest, const BigNumber& divisor) {
  std::uint64_t quotient = 0;
  for (int bit = 0; bit <= kMantissa; ++bit) {
    const bool set = rest >= divisor;
    if (set) rest.subtract(divisor);
    quotient = quotient << 1 | (set ? 1 : 0);
    rest.shift_left(1);
  }
  return rest > divisor || (rest >= divisor && quotient % 2 != 0) ? quotient + 1 : quotient;
}

// The nearest number to a fraction; infinity where it is too large.
double nearest_to(BigNumber& value, BigNumber& divisor) {
  int exponent = std::max(value.bit_length() - divisor.bit_length() - kMantissa, kLowest);
  if (exponent > 0) divisor.shift_left(exponent);
  if (exponent < 0) value.shift_left(-exponent);
  divisor.shift_left(kMantissa);
  if (value >= divisor) {  // one bit too many for the mantissa
    divisor.shift_left(1);
    ++exponent;
  }
  // The hidden bit counts as one in the exponent, and so does what rounding made one bit longer.
  const std::uint64_t mantissa = rounded_quotient(value, divisor);
  const std::uint64_t bits = (static_cast<std::uint64_t>(exponent - kLowest) << (kMantissa - 1)) + mantissa;
  constexpr auto kInfinity = std::bit_cast<std::uint64_t>(std::numeric_limits<double>::infinity());
  return std::bit_cast<double>(std::min(bits, kInfinity));
}

}  // namespace

DecimalDigits shortest_digits(double number) { return shortest_of(parts_of<std::uint64_t>(number)); }
DecimalDigits shortest_digits(float number) { return shortest_of(parts_of<std::uint32_t>(number)); }

DecimalDigits rounded_digits(double number, int most) {
  const BinaryParts parts = parts_of<std::uint64_t>(number);
  Fraction fraction(parts, decimal_magnitude(parts), 0);
  BigNumber ten_units = fraction.unit;
  ten_units.multiply(10);
  if (fraction.value >= ten_units) {
    fraction.unit.multiply(10);
    ++fraction.magnitude;
  }
  DecimalDigits result{{}, fraction.magnitude};
  int last = fraction.value.divide(fraction.unit);
  result.digits.push_back(digit(last));
  for (int written = 1; written < most; ++written) {
    fraction.value.multiply(10);
    last = fraction.value.divide(fraction.unit);
    result.digits.push_back(digit(last));
  }
  if (rounds_up(fraction.value, fraction.unit, last)) round_up(result);
  trim_zeros(result.digits);
  return result;
}

std::optional<double> nearest_double(DecimalDigits number) {
  constexpr int kLargest = 308, kSmallest = -324;  // magnitudes
  if (number.digits.empty() || number.magnitude < kSmallest) return 0;
  if (number.magnitude > kLargest) return std::nullopt;
  // Half way between two numbers there are up to 767 digits; of more it only counts that there are some.
  constexpr std::size_t kCounting = 768;
  if (number.digits.size() > kCounting) number.digits.replace(kCounting, std::string::npos, "1");

  BigNumber value = whole_number(number.digits);
  BigNumber divisor(1);
  const int power_of_ten = number.magnitude + 1 - static_cast<int>(number.digits.size());
  if (power_of_ten > 0) value.multiply_by_power_of_ten(power_of_ten);
  if (power_of_ten < 0) divisor.multiply_by_power_of_ten(-power_of_ten);
  const double nearest = nearest_to(value, divisor);
  if (!std::isfinite(nearest)) return std::nullopt;
  return nearest;
}

}  // namespace qvr
