// Conversions between values as a Visual Basic host makes them: text counts as a number, a date or a truth value when
// the locale reads it so, true is -1, Empty is zero or no text. What cannot be converted throws RuntimeFailure: 13 type
// mismatch, 94 for Null, 6 for overflow.
#pragma once

#include "base/value.h"

namespace qvr {

// What stands before the decimals of a number: the locale's sign, or a point in pieces of SQL, where a comma would part
// the number in two.
enum class Decimals { OfLocale, Point };

Text to_text(const Value& value, Decimals decimals = Decimals::OfLocale);
// The same as a view into the value where it is a text, else into `converted`.
TextView to_text_view(const Value& value, Text& converted, Decimals decimals = Decimals::OfLocale);
double to_number(const Value& value);
bool to_truth(const Value& value);
Date to_date(const Value& value);
// To the nearest 32-bit integer, halves to the even one.
std::int32_t to_long(const Value& value);

// Whether a Visual Basic host calls the value numeric: numbers, truth values, Empty, and texts that the locale reads as
// a number; no dates.
bool is_numeric(const Value& value);

}  // namespace qvr
