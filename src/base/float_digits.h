// Numbers in floating point as decimal digits and back, exactly, in whole numbers: what a processor calculates in
// floating point depends on how a host has set it. The standard library does the same faster, with 230 KB of tables and
// code.
#pragma once

#include <optional>
#include <string>

namespace qvr {

// A number but for its sign: "123" with the magnitude 0 is 1.23, with the magnitude 2 it is 123.
struct DecimalDigits {
  std::string digits;  // neither the first nor the last is 0
  int magnitude = 0;
};

// The fewest digits that read back as the same number, and of these the nearest. The number is finite and not 0.
DecimalDigits shortest_digits(double number);
DecimalDigits shortest_digits(float number);

// At most that many digits, and of these the nearest; half way, the even one. The number is finite and not 0.
DecimalDigits rounded_digits(double number, int most);

// The nearest number, half way the one with an even mantissa; 0 for what is too small, none for what is too large.
std::optional<double> nearest_double(DecimalDigits number);

}  // namespace qvr
