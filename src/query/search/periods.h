// Parses numbers and dates as users type them, by the locale.
#pragma once

#include <optional>

#include "base/value.h"
#include "query/search/atoms.h"

namespace qvr::query {

// The number normalised for SQL ("." as the decimal separator, "-", no superfluous zeros); nothing for what is no
// number in this locale or has more digits than the engines support. A thousands separator that is not followed by
// three digits counts as the decimal separator.
std::optional<Text> number_digits(TextView typed);
Text shown_number(TextView digits);
bool is_greater_number(TextView digits, TextView than);

// A year, a month, a day, a minute or a second: the half-open interval from `from` to `to`.
struct Period {
  Moment from, to;
  bool whole_days;
  bool with_seconds = false;
};
std::optional<Period> period_in(TextView typed);
bool is_one_day(const Period& period);
Moment day_before(const Moment& moment);
Text shown_moment(const Moment& moment, bool whole_day, bool with_seconds);

Date date_of(const Moment& moment);

}  // namespace qvr::query
