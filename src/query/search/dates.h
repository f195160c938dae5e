// Dates as users type them, by the locale: a year, a month, a day or a time of a day is a period.
#pragma once

#include <optional>

#include "base/engine.h"
#include "base/value.h"

namespace qvr::query {

// A point in time to the second; days as in Date.
struct Moment {
  std::int32_t day = 0, second = 0;
  auto operator<=>(const Moment&) const = default;
};

// A year, a month, a day, a minute or a second: the half-open interval from `from` to `to`.
struct Period {
  Moment from, to;
  bool whole_days;
  bool with_seconds = false;
};

// Months are counted from January of the year 0. Nothing for a day or a period that the calendar, which ends with
// 31/12/9999, does not have; the first day behind it is the end of the last periods.
constexpr std::int64_t month_number(std::int64_t year, int month) { return year * 12 + month - 1; }
std::optional<std::int32_t> day_of(std::int64_t month, int day);
std::optional<Period> days(std::int64_t from, std::int64_t to);  // to before `to`
std::optional<Period> months(std::int64_t first, std::int64_t count);

// The day of the platform's clock, which is asked once, and only by what needs it: one search is of one day.
class Today {
 public:
  std::int32_t day();

 private:
  std::optional<std::int32_t> day_;
};

// In words or figures; nothing for what is no period.
std::optional<Period> period_in(TextView typed, Today& today);

// The part of the period that literals of the engine can hold.
Period within(Engine engine, const Period& period);
Moment first_moment(Engine engine);  // that literals of the engine can hold
bool is_empty(const Period& period);
bool is_endless(const Period& period);   // it has no end within the calendar
bool is_one_unit(const Period& period);  // a day, a minute or a second
Period first_unit(const Period& period);
Period last_unit(const Period& period);

// The beginning of a unit, so that it can be typed again.
Text shown_unit(const Period& unit);

Date date_of(const Moment& moment);

}  // namespace qvr::query
