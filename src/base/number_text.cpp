#include "base/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>

#include "base/failure.h"
#include "base/float_digits.h"

namespace qvr {
namespace {

// The digits with the point behind the one of the magnitude 0, and zeros where there are no digits.
Text plain(const DecimalDigits& number) {
  Text text(number.digits.begin(), number.digits.end());
  if (number.magnitude < 0) {
    text.insert(0, static_cast<std::size_t>(-number.magnitude), u'0');
    text.insert(1, 1, u'.');
    return text;
  }
  const auto whole = static_cast<std::size_t>(number.magnitude) + 1;
  if (text.size() < whole) text.resize(whole, u'0');
  if (text.size() > whole) text.insert(whole, 1, u'.');
  return text;
}

// One digit before the point, and at least two digits of exponent.
Text with_exponent(const DecimalDigits& number) {
  Text text(number.digits.begin(), number.digits.end());
  if (text.size() > 1) text.insert(1, 1, u'.');
  text.append(number.magnitude < 0 ? u"E-" : u"E+");
  const std::string exponent = std::to_string(std::abs(number.magnitude));
  if (exponent.size() < 2) text.push_back(u'0');
  return text.append(exponent.begin(), exponent.end());
}

Text with_sign(bool negative, Text text) {
  if (negative) text.insert(0, 1, u'-');
  return text;
}

// Between these, plain digits are what people and databases expect; outside, an exponent keeps the text short.
// The upper bound is where the digits before the point begin to say more than the type holds.
template <class Float>
bool reads_well_in_digits(Float magnitude) {
  constexpr Float kUpper = std::is_same_v<Float, float> ? Float(16777216) : Float(999999999999999.875);
  return magnitude >= Float(1e-5) && magnitude <= kUpper;
}

template <class Float>
Text shortest(Float number) {
  if (!std::isfinite(number)) throw RuntimeFailure(failure_number::kOverflow);
  if (number == 0) return u"0";  // also for negative zero
  const DecimalDigits digits = shortest_digits(number);
  return with_sign(number < 0, reads_well_in_digits(std::fabs(number)) ? plain(digits) : with_exponent(digits));
}

// Digits of an integer magnitude with the decimal point put `scale` digits from the right, without trailing zeros.
Text scaled(Text digits, std::size_t scale, bool negative) {
  if (digits.size() <= scale) digits.insert(0, scale + 1 - digits.size(), u'0');
  Text decimals = digits.substr(digits.size() - scale);
  digits.resize(digits.size() - scale);
  while (!decimals.empty() && decimals.back() == u'0') decimals.pop_back();
  const bool zero = decimals.empty() && digits == u"0";
  if (!decimals.empty()) digits.append(u".").append(decimals);
  return negative && !zero ? u"-" + digits : digits;
}

// Divides the 96-bit magnitude by ten and gives the remainder.
std::uint32_t divide_by_ten(Decimal& number) {
  std::uint64_t rest = 0;
  for (std::uint32_t* part : {&number.high, &number.mid, &number.low}) {
    rest = rest << 32 | *part;
    *part = static_cast<std::uint32_t>(rest / 10);
    rest %= 10;
  }
  return static_cast<std::uint32_t>(rest);
}

// The exponent behind the "E" of a number; one beyond measure is cut.
long long exponent_in(std::string_view text) {
  const bool negative = text.starts_with('-');
  text.remove_prefix(negative || text.starts_with('+') ? 1 : 0);
  int exponent = 0;
  constexpr int kBeyondMeasure = 1 << 30;
  if (std::from_chars(text.data(), text.data() + text.size(), exponent).ec != std::errc()) exponent = kBeyondMeasure;
  return negative ? -exponent : exponent;
}

// The digits of a number as `number_length` knows them, with the power of ten of the first that is not 0.
DecimalDigits decimal_digits(std::string_view number) {
  const std::size_t exponent_at = std::min(number.find_first_of("eE"), number.size());
  const std::string_view mantissa = number.substr(0, exponent_at);
  const std::size_t first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return {};
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  auto power = static_cast<long long>(point) - static_cast<long long>(first) - (first < point ? 1 : 0);
  if (exponent_at < number.size()) power += exponent_in(number.substr(exponent_at + 1));

  constexpr long long kFarBeyondAnyNumber = 1'000'000;
  DecimalDigits result{{}, static_cast<int>(std::clamp(power, -kFarBeyondAnyNumber, kFarBeyondAnyNumber))};
  const std::string_view significant = mantissa.substr(first, mantissa.find_last_not_of("0.") - first + 1);
  std::ranges::copy_if(significant, std::back_inserter(result.digits), [](char unit) { return unit != '.'; });
  return result;
}

bool is_digit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

}  // namespace

Text shortest_number(double number) { return shortest(number); }
Text shortest_number(float number) { return shortest(number); }

Text shortest_number(std::uint64_t number) {
  return shortest_number(Decimal{0, static_cast<std::uint32_t>(number >> 32), static_cast<std::uint32_t>(number)});
}

Text shortest_number(Currency amount) {
  const bool negative = amount.scaled < 0;
  const auto unsigned_amount = static_cast<std::uint64_t>(amount.scaled);
  const std::uint64_t magnitude = negative ? 0 - unsigned_amount : unsigned_amount;
  const std::string digits = std::to_string(magnitude);
  return scaled(Text(digits.begin(), digits.end()), 4, negative);
}

Text shortest_number(const Decimal& number) {
  Decimal rest = number;
  Text digits;
  do {
    digits.insert(digits.begin(), static_cast<char16_t>(u'0' + divide_by_ten(rest)));
  } while (rest.high != 0 || rest.mid != 0 || rest.low != 0);
  return scaled(std::move(digits), number.scale, number.negative);
}

Text rounded_number(double number, int significant_digits) {
  if (!std::isfinite(number)) throw RuntimeFailure(failure_number::kOverflow);
  if (number == 0) return u"0";  // also for negative zero
  const DecimalDigits digits = rounded_digits(number, significant_digits);
  constexpr int kSmallestInDigits = -4;  // the magnitude
  const bool in_digits = digits.magnitude >= kSmallestInDigits && digits.magnitude < significant_digits;
  return with_sign(number < 0, in_digits ? plain(digits) : with_exponent(digits));
}

std::size_t number_length(TextView text) {
  std::size_t at = !text.empty() && (text[0] == u'-' || text[0] == u'+') ? 1 : 0;
  const auto skip_digits = [&text](std::size_t from) {
    while (from < text.size() && is_digit(text[from])) ++from;
    return from;
  };
  const std::size_t whole_end = skip_digits(at);
  std::size_t end = whole_end;
  std::size_t digits = whole_end - at;
  if (end < text.size() && text[end] == u'.') {
    end = skip_digits(whole_end + 1);
    digits += end - whole_end - 1;
  }
  if (digits == 0) return 0;
  if (end < text.size() && (text[end] == u'E' || text[end] == u'e')) {
    std::size_t exponent = end + 1;
    if (exponent < text.size() && (text[exponent] == u'-' || text[exponent] == u'+')) ++exponent;
    if (skip_digits(exponent) > exponent) end = skip_digits(exponent);
  }
  return end;
}

double number_prefix(TextView text) {
  const std::size_t start = text.find_first_not_of(u" \t\r\n");
  if (start == TextView::npos) return 0;
  text.remove_prefix(start);
  std::string narrow;
  for (char16_t unit : text.substr(0, number_length(text))) narrow.push_back(static_cast<char>(unit));
  const auto number = nearest_double(decimal_digits(narrow));
  if (!number) throw RuntimeFailure(failure_number::kOverflow);
  return narrow.starts_with('-') && *number != 0 ? -*number : *number;  // no negative zero
}

double number_of(Currency amount) { return static_cast<double>(amount.scaled) / 10000; }

double number_of(const Decimal& number) {
  const double magnitude = (static_cast<double>(number.high) * 4294967296.0 + static_cast<double>(number.mid)) *
                               4294967296.0 +
                           static_cast<double>(number.low);
  return (number.negative ? -magnitude : magnitude) / std::pow(10.0, number.scale);
}

}  // namespace qvr
