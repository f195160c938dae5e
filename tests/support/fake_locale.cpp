#include "support/fake_locale.h"

#include <algorithm>
#include <vector>

#include "base/date_text.h"
#include "base/number_text.h"

namespace qvr::tests {
namespace {

// The numbers between the separators; nothing when there is anything else or not this many.
std::optional<std::vector<int>> numbers(TextView text, char16_t separator, std::size_t wanted) {
  std::vector<int> found(1);
  std::size_t digits = 0;
  for (char16_t unit : text) {
    if (unit == separator && digits > 0) {
      found.push_back(0);
      digits = 0;
    } else if (unit >= u'0' && unit <= u'9' && ++digits <= 4) {
      found.back() = found.back() * 10 + (unit - u'0');
    } else {
      return std::nullopt;
    }
  }
  if (digits == 0 || found.size() != wanted) return std::nullopt;
  return found;
}

}  // namespace

std::optional<Date> FakeLocale::parse_date(TextView text) {
  if (every_text) return every_text;
  const bool afternoon = text.ends_with(u" PM");
  if (twelve_hours && (afternoon || text.ends_with(u" AM"))) {
    const auto clock = numbers(text.substr(0, text.size() - 3), u':', 2);
    if (!clock || (*clock)[0] < 1 || (*clock)[0] > 12) return std::nullopt;
    return date_from({1899, 12, 30, (*clock)[0] % 12 + (afternoon ? 12 : 0), (*clock)[1], 0});
  }
  const std::size_t blank = text.find(u' ');
  Text day(text.substr(0, blank));
  std::ranges::replace(day, date_separator, u'/');
  const auto parts = numbers(day, u'/', 3);
  if (!parts) return std::nullopt;
  const std::vector<int>& p = *parts;
  CalendarTime time{p[2], day_first ? p[1] : p[0], day_first ? p[0] : p[1]};
  if (blank != TextView::npos) {
    const auto clock = numbers(text.substr(blank + 1), u':', 3);
    if (!clock) return std::nullopt;
    time.hour = (*clock)[0], time.minute = (*clock)[1], time.second = (*clock)[2];
  }
  return date_from(time);
}

std::optional<double> FakeLocale::parse_number(TextView text) {
  Text plain(text);
  if (decimal != u'.' && plain.find(u'.') != Text::npos) return std::nullopt;
  std::ranges::replace(plain, decimal, u'.');
  if (plain.empty() || number_length(plain) != plain.size()) return std::nullopt;
  return number_prefix(plain);
}

Text FakeLocale::date_text(Date date) {
  const CalendarTime time = calendar_time(date);
  const Text day = padded(time.day, 2), month = padded(time.month, 2), between(1, date_separator);
  Text text = join({day_first ? day : month, between, day_first ? month : day, between, padded(time.year, 4)});
  if (time.hour + time.minute + time.second == 0) return text;
  return text + join({u" ", padded(time.hour, 2), u":", padded(time.minute, 2), u":", padded(time.second, 2)});
}

}  // namespace qvr::tests
