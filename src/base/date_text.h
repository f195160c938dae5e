// Conversion of dates to calendar fields and to text, independent of the locale.
#pragma once

#include <optional>

#include "base/value.h"

namespace qvr {

// A date and time of day in the proleptic Gregorian calendar, to the second.
struct CalendarTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
};

// Rounded to the nearest second, which can be midnight of the next day, but not beyond 31/12/9999 23:59:59. Throws
// failure 6 outside the years 100 to 9999.
CalendarTime calendar_time(Date date);

// The inverse; nothing when a part is out of its range.
std::optional<Date> date_from(const CalendarTime& time);

// Whether the date is within the years 100 to 9999, to the second.
bool has_calendar_time(Date date) noexcept;

// Formats the date by a mask of "yyyy", "mm" (month), "dd", "hh", "nn" (minutes) and "ss"; all other characters are
// literal.
Text formatted_date(Date date, TextView mask);

}  // namespace qvr
