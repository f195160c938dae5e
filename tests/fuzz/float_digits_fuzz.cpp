// Digits of numbers in floating point are those of the standard library, and so are the numbers that digits make.
#include "base/float_digits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

#include "base/utf8.h"
#include "fuzz/fuzz_input.h"

namespace qvr::tests {
namespace {

constexpr int kMostDigits = 20;

// "1.25e+03" for the digits 125 and the magnitude 3.
std::string scientific(const DecimalDigits& number) {
  const std::string power = std::to_string(std::abs(number.magnitude));
  std::string text = number.digits.substr(0, 1);
  if (number.digits.size() > 1) text += "." + number.digits.substr(1);
  return text + (number.magnitude < 0 ? "e-" : "e+") + (power.size() < 2 ? "0" : "") + power;
}

// Without zeros at the end of its digits.
std::string shortened(std::string text) {
  const std::size_t power = text.find('e');
  if (text.find('.') >= power) return text;
  std::size_t end = power;
  while (text[end - 1] == '0') --end;
  if (text[end - 1] == '.') --end;
  return text.erase(end, power - end);
}

template <class Float, class... Precision>
std::string expected(Float number, Precision... precision) {
  std::array<char, 1200> buffer;
  const auto written = std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::scientific, precision...);
  return shortened(std::string(buffer.begin(), written.ptr));
}

void check_equal(const DecimalDigits& found, const std::string& wanted, std::string_view what) {
  require(scientific(found) == wanted, what, {*from_utf8(scientific(found)), *from_utf8(wanted)});
}

// The bytes as a number's own; false for what has no digits.
template <class Float>
bool number_in(std::string_view bytes, Float& number) {
  if (bytes.empty()) return false;
  std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof(number)));
  number = std::fabs(number);
  return std::isfinite(number) && number != 0;
}

void check_read(const DecimalDigits& number) {
  const std::string text = scientific(number);
  double wanted = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), wanted);
  std::optional<double> answer = wanted;
  if (error == std::errc::result_out_of_range) answer = number.magnitude > 0 ? std::nullopt : std::optional(0.0);
  require(nearest_double(number) == answer, "digits are the nearest number", {*from_utf8(text)});
}

}  // namespace

// How many digits, the bytes of a number, digits, their magnitude.
void fuzz(FuzzInput& input) {
  const int most = 1 + std::abs(input.number() % kMostDigits);
  const std::string_view bytes = input.bytes();
  double wide = 0;
  if (number_in(bytes, wide)) {
    check_equal(shortest_digits(wide), expected(wide), "the fewest digits of a Double");
    check_equal(rounded_digits(wide, most), expected(wide, most - 1), "so many digits of a Double");
    check_read(shortest_digits(wide));
  }
  float narrow = 0;
  if (number_in(bytes, narrow)) {
    check_equal(shortest_digits(narrow), expected(narrow), "the fewest digits of a Single");
  }
  std::string digits(input.bytes());
  for (char& digit : digits) digit = static_cast<char>('0' + static_cast<unsigned char>(digit) % 10);
  const std::size_t first = digits.find_first_not_of('0');
  if (first == std::string::npos) return;
  check_read({digits.substr(first, digits.find_last_not_of('0') + 1 - first), input.number() % 1000});
}

}  // namespace qvr::tests
