#include "query/search/periods.h"

#include <algorithm>
#include <cmath>

#include "base/date_text.h"
#include "base/failure.h"
#include "session/thread_state.h"

namespace qvr::query {
namespace {

constexpr std::size_t kMostDigits = 28;  // the precision that all engines support
constexpr std::int32_t kSecondsPerDay = 86400;

Locale& locale() { return thread_state().platform().locale; }

// Removes blanks and currency symbols.
Text bare_number(TextView typed) {
  Text bare = replace_all(typed, u" ", u"");
  const Text symbol = locale().currency_symbol();
  for (const TextView sign : {TextView(symbol), TextView(u"\u20ac"), TextView(u"$"), TextView(u"\u00a3")}) {
    bare = replace_all(bare, sign, u"");
  }
  return bare;
}

bool is_apostrophe(char16_t unit) { return unit == u'\'' || unit == u'\u2019'; }
bool is_mark(char16_t unit) { return unit == u'.' || unit == u',' || unit == u'\'' || unit == u'\u2019'; }

bool before_three_digits(TextView text, std::size_t at) {
  return at + 3 < text.size() && all_digits(text.substr(at + 1, 3)) &&
         (at + 4 == text.size() || !is_digit(text[at + 4]));
}

// The position of the decimal separator in a number; its size when there is none, npos when the separators are invalid.
std::size_t decimal_mark(TextView text) {
  const char16_t decimal = locale().decimal_separator(), thousands = locale().thousands_separator();
  const std::size_t given = text.find(decimal);
  std::size_t marks = 0, last = text.size();
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (is_digit(text[i]) || i == given) continue;
    const bool thousands_mark = text[i] == thousands || (is_apostrophe(text[i]) && is_apostrophe(thousands));
    if (thousands_mark && i > 0 && i < given && before_three_digits(text, i)) continue;
    ++marks;
    last = i;
  }
  if (given != TextView::npos) return marks == 0 ? given : TextView::npos;
  if (marks == 0) return text.size();
  const bool taken_for_decimal = marks == 1 && (text[last] == u'.' || text[last] == u',');
  return taken_for_decimal ? last : TextView::npos;
}

Text only_digits(TextView text) {
  Text digits;
  std::ranges::copy_if(text, std::back_inserter(digits), is_digit);
  return digits;
}

Moment start_of(int year, int month, int day) {
  const auto date = date_from({year, month, day});
  return {static_cast<std::int32_t>(date.value().days), 0};
}

std::optional<Period> days(Moment from, Moment to) { return Period{from, to, true}; }

std::optional<Period> year_period(int year) {
  // The year 9999 has no next day.
  if (year < 100 || year > 9998) return std::nullopt;
  return days(start_of(year, 1, 1), start_of(year + 1, 1, 1));
}

std::optional<Period> month_period(int year, int month) {
  if (year < 100 || year > 9998 || month < 1 || month > 12) return std::nullopt;
  const bool last = month == 12;
  return days(start_of(year, month, 1), start_of(last ? year + 1 : year, last ? 1 : month + 1, 1));
}

int number_in(TextView digits) {
  int number = 0;
  for (const char16_t unit : digits) number = number * 10 + (unit - u'0');
  return number;
}

bool is_date_mark(char16_t unit) { return unit == u'/' || unit == u'-' || unit == u'.'; }

// "2011", "02/2011", "2011-02".
std::optional<Period> year_or_month(TextView typed) {
  if (typed.size() == 4 && all_digits(typed)) return year_period(number_in(typed));
  const auto mark = std::ranges::find_if(typed, is_date_mark);
  if (mark == typed.end()) return std::nullopt;
  const auto at = static_cast<std::size_t>(mark - typed.begin());
  TextView first = typed.substr(0, at), second = typed.substr(at + 1);
  if (first.size() == 4) std::swap(first, second);
  if (!all_digits(first) || !all_digits(second) || first.size() > 2 || second.size() != 4) return std::nullopt;
  return month_period(number_in(second), number_in(first));
}

// ISO 8601, in every locale.
std::optional<Date> iso_date(TextView typed) {
  if (typed.size() != 10 || typed[4] != u'-' || typed[7] != u'-') return std::nullopt;
  const TextView year = typed.substr(0, 4), month = typed.substr(5, 2), day = typed.substr(8);
  if (!all_digits(year) || !all_digits(month) || !all_digits(day)) return std::nullopt;
  return date_from({number_in(year), number_in(month), number_in(day)});
}

// A date without a time; nothing for what the locale reads as a time of day.
std::optional<std::int32_t> day_in(TextView typed) {
  if (typed.find(u':') != TextView::npos) return std::nullopt;
  auto date = iso_date(typed);
  if (!date) date = locale().parse_date(typed);
  if (!date || !has_calendar_time(*date) || date->days != std::trunc(date->days)) return std::nullopt;
  return static_cast<std::int32_t>(date->days);
}

// "hoy", "today - 7".
std::optional<std::int32_t> relative_day(TextView typed) {
  const auto word = day_word(typed);
  if (!word) return std::nullopt;
  const auto today = static_cast<std::int32_t>(std::trunc(thread_state().platform().system.now().days));
  const Text rest = replace_all(typed.substr(word->length), u" ", u"");
  if (rest.empty()) return today + word->days;
  const TextView digits = TextView(rest).substr(1);
  if ((rest[0] != u'+' && rest[0] != u'-') || !all_digits(digits) || digits.size() > 6) return std::nullopt;
  const int days = number_in(digits);
  return today + word->days + (rest[0] == u'-' ? -days : days);
}

struct TimeOfDay {
  std::int32_t second, length;
};

// "14:07", "14:07:09".
std::optional<TimeOfDay> time_in(TextView typed) {
  const auto parts = split(typed, u":");
  if (parts.size() < 2 || parts.size() > 3) return std::nullopt;
  for (const TextView part : parts) {
    if (!all_digits(part) || part.size() > 2) return std::nullopt;
  }
  const int hour = number_in(parts[0]), minute = number_in(parts[1]),
            second = parts.size() == 3 ? number_in(parts[2]) : 0;
  if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
  return TimeOfDay{hour * 3600 + minute * 60 + second, parts.size() == 3 ? 1 : 60};
}

Moment after(Moment moment, std::int32_t seconds) {
  const std::int32_t end = moment.second + seconds;
  return end < kSecondsPerDay ? Moment{moment.day, end} : Moment{moment.day + 1, end - kSecondsPerDay};
}

bool is_in_calendar(const Moment& moment) { return has_calendar_time(date_of(moment)); }

std::optional<Period> day_or_time(TextView typed) {
  const std::size_t gap = typed.find_last_of(u" T");
  const auto time = gap == TextView::npos ? std::nullopt : time_in(typed.substr(gap + 1));
  const TextView day_part = time ? trimmed(typed.substr(0, gap)) : typed;
  auto day = relative_day(day_part);
  if (!day) day = day_in(day_part);
  if (!day) return std::nullopt;
  if (!time) return days({*day, 0}, {*day + 1, 0});
  const Moment from{*day, time->second};
  return Period{from, after(from, time->length), false, time->length == 1};
}

}  // namespace

std::optional<Text> number_digits(TextView typed) {
  const Text bare = bare_number(typed);
  TextView text = bare;
  const bool negative = text.starts_with(u'-');
  if (negative || text.starts_with(u'+')) text.remove_prefix(1);
  const bool sensible = std::ranges::all_of(text, [](char16_t unit) { return is_digit(unit) || is_mark(unit); });
  const std::size_t mark = sensible ? decimal_mark(text) : TextView::npos;
  if (mark == TextView::npos) return std::nullopt;
  Text whole = only_digits(text.substr(0, mark)), decimals = only_digits(text.substr(std::min(mark + 1, text.size())));
  if (whole.empty() && decimals.empty()) return std::nullopt;
  whole.erase(0, std::min(whole.find_first_not_of(u'0'), whole.size()));
  decimals.erase(decimals.find_last_not_of(u'0') + 1);
  if (whole.size() + decimals.size() > kMostDigits) return std::nullopt;
  if (whole.empty() && decimals.empty()) return Text(u"0");
  return join({negative ? u"-" : u"", whole.empty() ? TextView(u"0") : whole, decimals.empty() ? u"" : u".", decimals});
}

Text shown_number(TextView digits) {
  const char16_t decimal = locale().decimal_separator();
  return replace_all(digits, u".", TextView(&decimal, 1));
}

// Compares normalised numbers (`number_digits`) without converting them: 28 digits exceed a double.
bool is_greater_number(TextView digits, TextView than) {
  const bool negative = digits.starts_with(u'-'), other_negative = than.starts_with(u'-');
  if (negative != other_negative) return other_negative;
  if (negative) return is_greater_number(than.substr(1), digits.substr(1));
  const std::size_t whole = std::min(digits.find(u'.'), digits.size()), other = std::min(than.find(u'.'), than.size());
  return whole != other ? whole > other : digits > than;
}

Date date_of(const Moment& moment) {
  const double fraction = static_cast<double>(moment.second) / kSecondsPerDay;
  return Date{moment.day < 0 ? moment.day - fraction : moment.day + fraction};
}

std::optional<Period> period_in(TextView typed) {
  auto period = year_or_month(typed);
  if (!period) period = day_or_time(typed);
  return period && is_in_calendar(period->from) && is_in_calendar(period->to) ? period : std::nullopt;
}

bool is_one_day(const Period& period) { return period.whole_days && period.to.day == period.from.day + 1; }

Moment day_before(const Moment& moment) { return {moment.day - 1, 0}; }

// The locale's short date, unless reading it back gives another day (two-digit years).
Text shown_moment(const Moment& moment, bool whole_day, bool with_seconds) {
  const Date day{static_cast<double>(moment.day)};
  Text text = locale().date_text(day);
  const auto read = day_in(text);
  if (!read || *read != moment.day || year_or_month(text)) text = formatted_date(day, u"yyyy-mm-dd");
  if (whole_day) return text;
  return join({text, u" ", formatted_date(date_of(moment), with_seconds ? u"hh:nn:ss" : u"hh:nn")});
}

}  // namespace qvr::query
