#include "base/date_text.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iterator>

#include "base/failure.h"

namespace qvr {
namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr sys_days kDayZero{std::chrono::year{1899} / 12 / 30};
constexpr double kFirstDay = -657434, kLastDay = 2958465;  // 1 January 100 and 31 December 9999
constexpr int kSecondsPerDay = 86400;

struct DayAndSeconds {
  int day, seconds;
};

// To the nearest second; nothing outside the calendar.
std::optional<DayAndSeconds> split(Date date) noexcept {
  const double whole = std::trunc(date.days);
  if (!(whole >= kFirstDay && whole <= kLastDay)) return std::nullopt;
  const auto day = static_cast<int>(whole);
  const auto seconds = static_cast<int>(std::lround(std::fabs(date.days - whole) * kSecondsPerDay));
  if (seconds < kSecondsPerDay) return DayAndSeconds{day, seconds};
  // 23:59:59.997 of the last day is the greatest value of some engines: it stays on the last second of the calendar.
  if (day == kLastDay) return DayAndSeconds{day, kSecondsPerDay - 1};
  return DayAndSeconds{day + 1, 0};
}

}  // namespace

bool has_calendar_time(Date date) noexcept { return split(date).has_value(); }

CalendarTime calendar_time(Date date) {
  const auto parts = split(date);
  if (!parts) throw RuntimeFailure(failure_number::kOverflow);
  const std::chrono::year_month_day calendar{kDayZero + days{parts->day}};
  return {static_cast<int>(calendar.year()),
          static_cast<int>(static_cast<unsigned>(calendar.month())),
          static_cast<int>(static_cast<unsigned>(calendar.day())),
          parts->seconds / 3600,
          parts->seconds / 60 % 60,
          parts->seconds % 60};
}

std::optional<Date> date_from(const CalendarTime& time) {
  const auto within = [](int part, int limit) { return part >= 0 && part < limit; };
  // std::chrono::month and day are unspecified beyond 255: check the range first.
  if (!within(time.month, 13) || !within(time.day, 32)) return std::nullopt;
  const std::chrono::year_month_day calendar{std::chrono::year{time.year},
                                             std::chrono::month{static_cast<unsigned>(time.month)},
                                             std::chrono::day{static_cast<unsigned>(time.day)}};
  if (!calendar.ok() || time.year < 100 || time.year > 9999) return std::nullopt;
  if (!within(time.hour, 24) || !within(time.minute, 60) || !within(time.second, 60)) return std::nullopt;
  const auto day = static_cast<double>((sys_days{calendar} - kDayZero).count());
  const double fraction = (time.hour * 3600 + time.minute * 60 + time.second) / double{kSecondsPerDay};
  return Date{day < 0 ? day - fraction : day + fraction};
}

Text formatted_date(Date date, TextView mask) {
  const CalendarTime time = calendar_time(date);
  const struct {
    TextView token;
    int part;
  } parts[] = {{u"yyyy", time.year}, {u"mm", time.month},  {u"dd", time.day},
               {u"hh", time.hour},   {u"nn", time.minute}, {u"ss", time.second}};
  Text text;
  text.reserve(mask.size());
  while (!mask.empty()) {
    const auto* part = std::ranges::find_if(parts, [&](const auto& row) { return mask.starts_with(row.token); });
    if (part == std::end(parts)) {
      text.push_back(mask.front());
      mask.remove_prefix(1);
    } else {
      text += padded(part->part, part->token.size());
      mask.remove_prefix(part->token.size());
    }
  }
  return text;
}

}  // namespace qvr
