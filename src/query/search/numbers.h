// Numbers as users type them, by the locale.
#pragma once

#include <optional>

#include "base/text.h"

namespace qvr::query {

// The number normalised for SQL ("." as the decimal separator, "-", no superfluous zeros); nothing for what is no
// number in this locale or has more digits than the engines support. Thousands separators or blanks stand before groups
// of exactly three digits; a single "." or "," that cannot be one is the decimal separator. A currency symbol or code
// may stand at either end.
std::optional<Text> number_digits(TextView typed);
Text shown_number(TextView digits);
bool is_greater_number(TextView digits, TextView than);

}  // namespace qvr::query
