// Numbers and dates as users type them, by the locale.
#pragma once

#include <optional>

#include "base/value.h"
#include "query/search_atoms.h"

namespace qvr::query {

// The number's digits with "." and "-", no blanks and no zeros that say nothing; nothing for what is no number in this
// locale or has more digits than the engines can read. A thousands mark that does not stand before three digits is
// taken for the decimal one.
std::optional<Text> number_digits(TextView typed);
Text shown_number(TextView digits);
bool is_greater_number(TextView digits, TextView than);

// A year, a month, a day, a minute or a second: all moments from `from` to before `to`.
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
