// A locale whose separators and date order a test chooses.
#pragma once

#include "platform/platform.h"

namespace qvr::tests {

class FakeLocale final : public Locale {
 public:
  // Three numbers in this locale's order, "/" or its own separator between them, and perhaps "hh:mm:ss" behind a blank;
  // with twelve hours also "h:mm PM" alone.
  std::optional<Date> parse_date(TextView text) override;
  std::optional<double> parse_number(TextView text) override;  // the whole text, without thousands separators
  Text date_text(Date date) override;
  char16_t decimal_separator() override { return decimal; }
  char16_t thousands_separator() override { return thousands; }
  Text currency_symbol() override { return currency; }

  char16_t decimal = u'.', thousands = u',';
  Text currency = u"\u20ac";
  char16_t date_separator = u'/';
  bool day_first = true;
  bool twelve_hours = false;
  std::optional<Date> every_text;  // the date that any text is read as
};

}  // namespace qvr::tests
