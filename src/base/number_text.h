// Numbers as text, independent of the locale: "." as the decimal separator, no thousands separators, an exponent
// ("E+20") for very large and very small numbers, no leading blank.
#pragma once

#include "base/value.h"

namespace qvr {

// The shortest text that reads back as the same number. Throws failure 6 for infinities and NaN.
Text shortest_number(double number);
Text shortest_number(float number);
Text shortest_number(Currency amount);
Text shortest_number(const Decimal& number);
Text shortest_number(std::uint64_t number);

// At most this many significant digits, as people read numbers.
Text rounded_number(double number, int significant_digits);

// The number at the beginning of the text, after leading blanks; reading stops at the first character that does not
// fit. 0 when there is none. Throws failure 6 when it is too large for a double.
double number_prefix(TextView text);

// The length of such a number at the very start of the text (sign, digits, "." and exponent); 0 for none.
std::size_t number_length(TextView text);

double number_of(Currency amount);
double number_of(const Decimal& number);

}  // namespace qvr
