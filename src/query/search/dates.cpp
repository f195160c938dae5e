#include "query/search/dates.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "base/date_text.h"
#include "dialect/literals.h"
#include "query/search/date_words.h"
#include "session/thread_state.h"

namespace qvr::query {
namespace {

constexpr std::int32_t kSecondsPerDay = 86400;
constexpr std::int32_t kFirstDay = -657434, kBehindLastDay = 2958466;  // 1 January 100, and what follows 31/12/9999
constexpr std::int64_t kMonthBehindLast = month_number(10000, 1);

Locale& locale() { return thread_state().platform().locale; }

int number_in(TextView digits) {
  int number = 0;
  for (const char16_t unit : digits) number = number * 10 + (unit - u'0');
  return number;
}

bool is_date_mark(char16_t unit) { return unit == u'/' || unit == u'-' || unit == u'.'; }

// "2011", "02/2011", "2011-02".
std::optional<Period> year_or_month(TextView typed) {
  if (typed.size() == 4 && all_digits(typed)) return months(month_number(number_in(typed), 1), 12);
  const auto mark = std::ranges::find_if(typed, is_date_mark);
  if (mark == typed.end()) return std::nullopt;
  const auto at = static_cast<std::size_t>(mark - typed.begin());
  TextView first = typed.substr(0, at), second = typed.substr(at + 1);
  if (first.size() == 4) std::swap(first, second);
  if (!all_digits(first) || !all_digits(second) || first.size() > 2 || second.size() != 4) return std::nullopt;
  const int month = number_in(first);
  return month >= 1 && month <= 12 ? months(month_number(number_in(second), month), 1) : std::nullopt;
}

// ISO 8601, in every locale.
std::optional<Date> iso_date(TextView typed) {
  if (typed.size() != 10 || typed[4] != u'-' || typed[7] != u'-') return std::nullopt;
  const TextView year = typed.substr(0, 4), month = typed.substr(5, 2), day = typed.substr(8);
  if (!all_digits(year) || !all_digits(month) || !all_digits(day)) return std::nullopt;
  return date_from({number_in(year), number_in(month), number_in(day)});
}

// "5.1.2011", which some locales would take for a time of day.
bool is_day_with_points(TextView typed) {
  if (typed.find(u'.') == TextView::npos) return false;
  const auto parts = split(typed, u".");
  return parts.size() == 3 && std::ranges::all_of(parts, all_digits) && parts[2].size() == 4;
}

// A date without a time; nothing for what the locale reads as a time of day, whose day is 30/12/1899.
std::optional<std::int32_t> day_in(TextView typed) {
  if (typed.find(u':') != TextView::npos || all_digits(typed)) return std::nullopt;
  auto date = iso_date(typed);
  if (!date) {
    date = is_day_with_points(typed) ? locale().parse_date(replace_all(typed, u".", u"/")) : locale().parse_date(typed);
  }
  if (!date || !has_calendar_time(*date) || date->days != std::trunc(date->days)) return std::nullopt;
  if (date->days == 0 && typed.find(u"1899") == TextView::npos) return std::nullopt;
  return static_cast<std::int32_t>(date->days);
}

std::optional<Period> whole_day(TextView typed, Today& today) {
  const bool figures = typed.find_first_not_of(u"0123456789/-.") == TextView::npos;
  const auto form = figures ? std::nullopt : form_in_words(typed, today.day());
  if (form) return form->period;
  const auto day = day_in(typed);
  return day ? days(*day, *day + 1) : std::nullopt;
}

struct TimeOfDay {
  std::int32_t second, length;
};

// "14:07", "14:07:09".
std::optional<std::int32_t> second_in(std::span<const TextView> parts) {
  const bool digits = std::ranges::all_of(parts, [](TextView part) { return all_digits(part) && part.size() <= 2; });
  if (!digits || parts.size() > 3) return std::nullopt;
  const int hour = number_in(parts[0]), minute = number_in(parts[1]),
            second = parts.size() == 3 ? number_in(parts[2]) : 0;
  if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
  return hour * 3600 + minute * 60 + second;
}

// Also as the locale writes it: "2:07 PM".
std::optional<TimeOfDay> time_in(TextView typed) {
  const auto parts = split(typed, u":");
  if (parts.size() < 2) return std::nullopt;
  const std::int32_t length = parts.size() == 3 ? 1 : 60;
  if (const auto second = second_in(parts)) return TimeOfDay{*second, length};
  const auto time = locale().parse_date(typed);
  if (!time || time->days < 0 || time->days >= 1) return std::nullopt;
  return TimeOfDay{static_cast<std::int32_t>(std::lround(time->days * kSecondsPerDay)), length};
}

Moment after(Moment moment, std::int32_t seconds) {
  const std::int32_t end = moment.second + seconds;
  return end < kSecondsPerDay ? Moment{moment.day, end} : Moment{moment.day + 1, end - kSecondsPerDay};
}

// A day, and a time behind it.
std::optional<Period> time_of_day(TextView typed, Today& today) {
  const std::size_t gap = typed.find_last_of(u" T", typed.find(u':'));
  if (gap == TextView::npos) return std::nullopt;
  const auto time = time_in(trimmed(typed.substr(gap + 1)));
  const auto day = time ? whole_day(trimmed(typed.substr(0, gap)), today) : std::nullopt;
  if (!day || !is_one_unit(*day)) return std::nullopt;
  const Moment from{day->from.day, time->second};
  return Period{from, after(from, time->length), false, time->length == 1};
}

}  // namespace

std::optional<std::int32_t> day_of(std::int64_t month, int day) {
  if (month == kMonthBehindLast && day == 1) return kBehindLastDay;
  if (month < 0 || month >= kMonthBehindLast) return std::nullopt;
  const auto date = date_from({static_cast<int>(month / 12), static_cast<int>(month % 12) + 1, day});
  return date ? std::optional(static_cast<std::int32_t>(date->days)) : std::nullopt;
}

std::optional<Period> days(std::int64_t from, std::int64_t to) {
  if (from < kFirstDay || from >= to || to > kBehindLastDay) return std::nullopt;
  return Period{{static_cast<std::int32_t>(from), 0}, {static_cast<std::int32_t>(to), 0}, true};
}

std::optional<Period> months(std::int64_t first, std::int64_t count) {
  const auto from = day_of(first, 1), to = day_of(first + count, 1);
  return from && to ? days(*from, *to) : std::nullopt;
}

std::int32_t Today::day() {
  if (!day_) day_ = static_cast<std::int32_t>(std::trunc(thread_state().platform().system.now().days));
  return *day_;
}

std::optional<Period> period_in(TextView typed, Today& today) {
  if (const auto period = year_or_month(typed)) return period;
  return typed.find(u':') == TextView::npos ? whole_day(typed, today) : time_of_day(typed, today);
}

Moment first_moment(Engine engine) { return {static_cast<std::int32_t>(dialect::first_date(engine).days), 0}; }

Period within(Engine engine, const Period& period) {
  const Moment first = first_moment(engine);
  if (period.to <= first) return {first, first, true};
  return {std::max(period.from, first), period.to, period.whole_days, period.with_seconds};
}

bool is_empty(const Period& period) { return period.from == period.to; }
bool is_endless(const Period& period) { return period.to.day == kBehindLastDay; }
bool is_one_unit(const Period& period) { return !period.whole_days || period.to.day == period.from.day + 1; }

Period first_unit(const Period& period) {
  return period.whole_days ? Period{period.from, {period.from.day + 1, 0}, true} : period;
}

Period last_unit(const Period& period) {
  return period.whole_days ? Period{{period.to.day - 1, 0}, period.to, true} : period;
}

// The locale's short date, unless reading it back gives another day (two-digit years).
Text shown_unit(const Period& unit) {
  const Date day{static_cast<double>(unit.from.day)};
  Text text = locale().date_text(day);
  const auto read = day_in(text);
  if (!read || *read != unit.from.day || year_or_month(text)) text = formatted_date(day, u"yyyy-mm-dd");
  if (unit.whole_days) return text;
  return join({text, u" ", formatted_date(date_of(unit.from), unit.with_seconds ? u"hh:nn:ss" : u"hh:nn")});
}

Date date_of(const Moment& moment) {
  const double fraction = static_cast<double>(moment.second) / kSecondsPerDay;
  return Date{moment.day < 0 ? moment.day - fraction : moment.day + fraction};
}

}  // namespace qvr::query
