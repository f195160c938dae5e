#include "odbc/odbc_date.h"

#include <chrono>
#include <cmath>

namespace qvr::odbc {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kDayZero = std::chrono::year{1899} / 12 / 30;
constexpr std::int64_t kMillisecondsPerDay = 86'400'000;

}  // namespace

SQL_TIMESTAMP_STRUCT to_timestamp(Date date) {
  // For negative days the fraction still counts forward within the day.
  const double whole = std::trunc(date.days);
  auto day = static_cast<std::int64_t>(whole);
  std::int64_t rest = std::llround(std::abs(date.days - whole) * static_cast<double>(kMillisecondsPerDay));
  if (rest == kMillisecondsPerDay) {
    rest = 0;
    ++day;
  }
  const year_month_day calendar{kDayZero + days{day}};
  SQL_TIMESTAMP_STRUCT stamp{};
  stamp.year = static_cast<SQLSMALLINT>(static_cast<int>(calendar.year()));
  stamp.month = static_cast<SQLUSMALLINT>(static_cast<unsigned>(calendar.month()));
  stamp.day = static_cast<SQLUSMALLINT>(static_cast<unsigned>(calendar.day()));
  stamp.hour = static_cast<SQLUSMALLINT>(rest / 3'600'000);
  stamp.minute = static_cast<SQLUSMALLINT>(rest / 60'000 % 60);
  stamp.second = static_cast<SQLUSMALLINT>(rest / 1000 % 60);
  stamp.fraction = static_cast<SQLUINTEGER>(rest % 1000 * 1'000'000);  // nanoseconds
  return stamp;
}

Date from_timestamp(const SQL_TIMESTAMP_STRUCT& stamp) {
  const year_month_day calendar{std::chrono::year{stamp.year}, std::chrono::month{stamp.month},
                                std::chrono::day{stamp.day}};
  const auto day = static_cast<double>((sys_days{calendar} - kDayZero).count());
  const double seconds = stamp.hour * 3600.0 + stamp.minute * 60.0 + stamp.second + stamp.fraction / 1e9;
  return Date{day < 0 ? day - seconds / 86400.0 : day + seconds / 86400.0};
}

}  // namespace qvr::odbc
