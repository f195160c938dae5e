#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "base/failure.h"

namespace qvr {
namespace {

Text as_text(const char* first, const char* last) {
  Text text(first, last);
  std::ranges::replace(text, u'e', u'E');
  return text;
}

// Within these bounds plain digits, outside an exponent. Above the upper bound the type no longer holds every digit
// before the point.
template <class Float>
bool reads_well_in_digits(Float magnitude) {
  constexpr Float kUpper = std::is_same_v<Float, float> ? Float(16777216) : Float(999999999999999.875);
  return magnitude >= Float(1e-5) && magnitude <= kUpper;
}

// std::to_chars with these arguments.
template <class Float, class... Precision>
Text written(Float number, std::chars_format format, Precision... precision) {
  if (!std::isfinite(number)) throw RuntimeFailure(failure_number::kOverflow);
  if (number == 0) return u"0";  // also for negative zero
  std::array<char, 64> buffer;
  const auto end = std::to_chars(buffer.begin(), buffer.end(), number, format, precision...).ptr;
  return as_text(buffer.begin(), end);
}

template <class Float>
Text shortest(Float number) {
  const bool in_digits = reads_well_in_digits(std::fabs(number));
  return written(number, in_digits ? std::chars_format::fixed : std::chars_format::scientific);
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

// The exponent behind the "E" of a number, clamped so that it cannot overflow.
long long exponent_in(std::string_view text) {
  const bool negative = text.starts_with('-');
  text.remove_prefix(negative || text.starts_with('+') ? 1 : 0);
  int exponent = 0;
  constexpr int kBeyondMeasure = 1 << 30;
  if (std::from_chars(text.data(), text.data() + text.size(), exponent).ec != std::errc()) exponent = kBeyondMeasure;
  return negative ? -exponent : exponent;
}

// Whether the absolute value of this number, which is not 0, is below 1: out of range then means underflow.
bool is_fraction(std::string_view number) {
  const std::size_t exponent_at = std::min(number.find_first_of("eE"), number.size());
  const std::string_view mantissa = number.substr(0, exponent_at);
  const auto first = static_cast<long long>(mantissa.find_first_of("123456789"));
  const auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
  const long long power = point - first - (first < point ? 1 : 0);
  return power + (exponent_at < number.size() ? exponent_in(number.substr(exponent_at + 1)) : 0) < 0;
}

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
  return written(number, std::chars_format::general, significant_digits);
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
  const std::size_t start = text.find_first_not_of(kWhiteSpace);
  if (start == TextView::npos) return 0;
  text.remove_prefix(start);
  text = text.substr(0, number_length(text));
  if (text.starts_with(u'+')) text.remove_prefix(1);
  std::string narrow;
  for (char16_t unit : text) narrow.push_back(static_cast<char>(unit));
  double number = 0;
  const auto read = std::from_chars(narrow.data(), narrow.data() + narrow.size(), number);
  if (read.ec != std::errc::result_out_of_range) return number != 0 ? number : 0;  // no negative zero
  if (!is_fraction(narrow)) throw RuntimeFailure(failure_number::kOverflow);
  return 0;
}

double number_of(Currency amount) { return static_cast<double>(amount.scaled) / 10000; }

double number_of(const Decimal& number) {
  const double magnitude = (static_cast<double>(number.high) * 4294967296.0 + static_cast<double>(number.mid)) *
                               4294967296.0 +
                           static_cast<double>(number.low);
  return (number.negative ? -magnitude : magnitude) / std::pow(10.0, number.scale);
}

}  // namespace qvr
