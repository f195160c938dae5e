// Conversions between values by the rules of Visual Basic: text is parsed as a number, a date or a Boolean by the
// locale, True is -1, Empty is zero or the empty text. Throws RuntimeFailure: 13 type mismatch, 94 for Null, 6 for
// overflow.
#pragma once

#include "base/value.h"

namespace qvr {

// The decimal separator: the locale's, or a point inside SQL, where a comma separates list elements.
enum class Decimals { OfLocale, Point };

Text to_text(const Value& value, Decimals decimals = Decimals::OfLocale);
// The same without a copy: a view into the value if it is a text, else into `converted`.
TextView to_text_view(const Value& value, Text& converted, Decimals decimals = Decimals::OfLocale);
double to_number(const Value& value);
bool to_truth(const Value& value);
Date to_date(const Value& value);
// Rounds to the nearest 32-bit integer, halves to even.
std::int32_t to_long(const Value& value);

// IsNumeric of Visual Basic: numbers, Booleans, Empty, and texts that the locale reads as a number; no dates.
bool is_numeric(const Value& value);

}  // namespace qvr
