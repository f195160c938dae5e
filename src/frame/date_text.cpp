#include "frame/date_text.h"

#include <chrono>
#include <cmath>

#include "frame/failure.h"

namespace qvr {
namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr sys_days kDayZero{std::chrono::year{1899} / 12 / 30};
constexpr double kFirstDay = -657434, kLastDay = 2958465;  // 1 January 100 and 31 December 9999
constexpr int kSecondsPerDay = 86400;

}  // namespace

CalendarTime calendar_time(Date date) {
  const double whole = std::trunc(date.days);
  if (!(whole >= kFirstDay && whole <= kLastDay)) throw RuntimeFailure(failure_number::kOverflow);
  auto day = static_cast<int>(whole);
  auto seconds = static_cast<int>(std::lround(std::fabs(date.days - whole) * kSecondsPerDay));
  if (seconds == kSecondsPerDay) {
    ++day;
    seconds = 0;
  }
  if (day > kLastDay) throw RuntimeFailure(failure_number::kOverflow);
  const std::chrono::year_month_day calendar{kDayZero + days{day}};
  return {static_cast<int>(calendar.year()),
          static_cast<int>(static_cast<unsigned>(calendar.month())),
          static_cast<int>(static_cast<unsigned>(calendar.day())),
          seconds / 3600,
          seconds / 60 % 60,
          seconds % 60};
}

std::optional<Date> date_from(const CalendarTime& time) {
  const auto within = [](int part, int limit) { return part >= 0 && part < limit; };
  // The calendar's own types keep only the low bits of a month or day far out of range.
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

Text padded(int number, std::size_t width) {
  Text digits = decimal(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), u'0');
  return digits;
}

Text year_month_day(Date date, char16_t separator) {
  const CalendarTime time = calendar_time(date);
  const TextView between(&separator, 1);
  return join({padded(time.year, 4), between, padded(time.month, 2), between, padded(time.day, 2)});
}

}  // namespace qvr
