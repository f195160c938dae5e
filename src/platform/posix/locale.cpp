#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "base/date_text.h"
#include "base/number_text.h"
#include "platform/parts.h"
#include "platform/posix/names.h"

namespace qvr::posix {
namespace {

enum class DateOrder { DayMonthYear, MonthDayYear };

struct Conventions {
  std::string_view name;
  DateOrder order;
  char16_t date_separator;
  char16_t decimal, thousands;
  TextView currency;
};

// By locale name, then by language alone; the last row is the default.
constexpr Conventions kConventions[] = {
    {"es_MX", DateOrder::DayMonthYear, u'/', u'.', u',', u"$"},
    {"en_GB", DateOrder::DayMonthYear, u'/', u'.', u',', u"\u00a3"},
    {"fr_CH", DateOrder::DayMonthYear, u'.', u'.', u'\'', u"CHF"},
    {"de_CH", DateOrder::DayMonthYear, u'.', u'.', u'\'', u"CHF"},
    {"es", DateOrder::DayMonthYear, u'/', u',', u'.', u"\u20ac"},
    {"fr", DateOrder::DayMonthYear, u'/', u',', u'\u00a0', u"\u20ac"},
    {"de", DateOrder::DayMonthYear, u'.', u',', u'.', u"\u20ac"},
    {"", DateOrder::MonthDayYear, u'/', u'.', u',', u"$"},
};

const Conventions& conventions() {
  const std::string name = locale_name();
  const std::string_view language = std::string_view(name).substr(0, name.find('_'));
  return *std::ranges::find_if(kConventions, [&](const Conventions& row) {
    return row.name == name || row.name == language || row.name.empty();
  });
}

// A run of digits with the unit that follows it (0 at the end of the text).
struct Field {
  int number;
  std::size_t digits;
  char16_t after;
};

// Nothing when the text is not digits with single separators between them.
std::optional<std::vector<Field>> numeric_fields(TextView text) {
  std::vector<Field> fields;
  while (!text.empty()) {
    std::size_t digits = 0;
    int number = 0;
    while (digits < text.size() && is_digit(text[digits]) && digits < 5) number = number * 10 + (text[digits++] - u'0');
    if (digits == 0 || digits == 5) return std::nullopt;
    text.remove_prefix(digits);
    fields.push_back({number, digits, text.empty() ? char16_t{0} : text[0]});
    if (!text.empty()) text.remove_prefix(1);
  }
  return fields;
}

bool joined_by(const std::vector<Field>& fields, std::size_t first, std::size_t last, TextView separators) {
  for (std::size_t i = first; i < last; ++i) {
    if (separators.find(fields[i].after) == TextView::npos) return false;
  }
  return true;
}

int full_year(const Field& field) {
  if (field.digits > 2) return field.number;
  return field.number < 30 ? 2000 + field.number : 1900 + field.number;
}

// Day, month and year (given or this one) from two or three fields.
bool read_date(const std::vector<Field>& fields, std::size_t count, CalendarTime& time) {
  if (count < 2 || count > 3 || !joined_by(fields, 0, count - 1, u"/-.")) return false;
  const std::chrono::year_month_day today{std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now())};
  if (fields[0].digits > 2) {
    if (count != 3) return false;
    time.year = fields[0].number, time.month = fields[1].number, time.day = fields[2].number;
    return true;
  }
  const bool day_first = conventions().order == DateOrder::DayMonthYear;
  time.day = fields[day_first ? 0 : 1].number;
  time.month = fields[day_first ? 1 : 0].number;
  time.year = count == 3 ? full_year(fields[2]) : static_cast<int>(today.year());
  return true;
}

bool read_time(const std::vector<Field>& fields, std::size_t first, CalendarTime& time) {
  const std::size_t count = fields.size() - first;
  if (count < 2 || count > 3 || !joined_by(fields, first, fields.size() - 1, u":")) return false;
  time.hour = fields[first].number, time.minute = fields[first + 1].number;
  time.second = count == 3 ? fields[first + 2].number : 0;
  return true;
}

class EnvironmentLocale final : public Locale {
 public:
  std::optional<Date> parse_date(TextView text) override {
    const auto fields = numeric_fields(trimmed(text));
    if (!fields || fields->empty() || fields->back().after != 0) return std::nullopt;
    const auto blank = std::ranges::find(*fields, u' ', &Field::after);
    const bool starts_with_time = fields->front().after == u':';
    const auto date_fields = blank == fields->end() ? fields->size()
                                                    : static_cast<std::size_t>(blank - fields->begin()) + 1;
    CalendarTime time{1899, 12, 30, 0, 0, 0};
    if (starts_with_time) return read_time(*fields, 0, time) ? date_from(time) : std::nullopt;
    if (!read_date(*fields, date_fields, time)) return std::nullopt;
    if (date_fields < fields->size() && !read_time(*fields, date_fields, time)) return std::nullopt;
    return date_from(time);
  }

  std::optional<double> parse_number(TextView text) override {
    text = trimmed(text);
    Text plain;
    for (char16_t unit : text) {
      if (unit == conventions().thousands && !plain.empty() && is_digit(plain.back())) continue;
      if (unit == u'.' && conventions().decimal != u'.') return std::nullopt;
      plain.push_back(unit == conventions().decimal ? u'.' : unit);
    }
    if (plain.empty() || number_length(plain) != plain.size()) return std::nullopt;
    return number_prefix(plain);
  }

  Text date_text(Date date) override {
    const CalendarTime time = calendar_time(date);
    const bool day_first = conventions().order == DateOrder::DayMonthYear;
    const TextView between(&conventions().date_separator, 1);
    const Text day = padded(time.day, 2), month = padded(time.month, 2);
    const Text clock = join({padded(time.hour, 2), u":", padded(time.minute, 2), u":", padded(time.second, 2)});
    const Text calendar = join(
        {day_first ? day : month, between, day_first ? month : day, between, padded(time.year, 4)});
    if (time.hour + time.minute + time.second == 0) return calendar;
    const bool day_zero = time.year == 1899 && time.month == 12 && time.day == 30;
    return day_zero ? clock : join({calendar, u" ", clock});
  }

  char16_t decimal_separator() override { return conventions().decimal; }
  char16_t thousands_separator() override { return conventions().thousands; }
  Text currency_symbol() override { return Text(conventions().currency); }
};

}  // namespace

std::string locale_name() {
  for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value == nullptr || *value == '\0') continue;
    const std::string_view name = value;
    return std::string(name.substr(0, name.find_first_of(".@")));
  }
  return "C";
}

}  // namespace qvr::posix

qvr::Locale& qvr::platform_parts::locale() {
  static posix::EnvironmentLocale instance;
  return instance;
}
