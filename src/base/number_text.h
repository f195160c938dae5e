// Numbers as text, independent of the locale: "." before the decimals, no thousands separators, "E+20" for what would
// be long in digits, and no leading blank.
#pragma once

#include "base/value.h"

namespace qvr {

// The shortest text that reads back as the same number. Throws failure 6 for what is no finite number.
Text shortest_number(double number);
Text shortest_number(float number);
Text shortest_number(Currency amount);
Text shortest_number(const Decimal& number);
Text shortest_number(std::uint64_t number);

// At most this many significant digits, as people read numbers.
Text rounded_number(double number, int significant_digits);

// The number that the text begins with, after leading blanks; reading stops where it no longer fits, and 0 when there
// is none. Throws failure 6 when it is too large for a double.
double number_prefix(TextView text);

// How many units at the very start of the text are such a number: sign, digits, "." and exponent; 0 for none.
std::size_t number_length(TextView text);

double number_of(Currency amount);
double number_of(const Decimal& number);

}  // namespace qvr
