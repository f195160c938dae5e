// Periods as people say them ("este mes", "last 7 days", "1er janvier"), in all languages at once.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "query/search/dates.h"

namespace qvr::query {

// A form that was read is no text for the locale to guess at, though it may be of no period: "31 de febrero".
struct FormInWords {
  std::optional<Period> period;
};

// Nothing for what is no such form, or in no single language. `today` counts days as Date does. A period may end at the
// day behind the last one of the calendar.
std::optional<FormInWords> form_in_words(TextView typed, std::int32_t today);

// The words, as people write them.

enum class Language { Spanish, English, French };
enum class Unit { Day, Week, Month, Quarter, Year };

// "la semana pasada", "tomorrow": a period beside today's, in its units. The article may be left out.
struct PeriodBeside {
  Language language;
  Unit unit;
  int steps;
  TextView article, phrase;
};
std::span<const PeriodBeside> periods_beside();

// The months and quarters of a year, from 1.
struct NamedPeriod {
  Language language;
  Unit unit;
  int number;
  std::array<TextView, 5> names;
};
std::span<const NamedPeriod> named_periods();

// What stands beside a name: "el 5 de enero del 2011", "January 5th, 2011".
struct NameWords {
  Language language;
  TextView article;
  std::array<TextView, 4> behind_day_number;  // as in "1st"
  TextView before_month;
  std::array<TextView, 2> before_year;
  bool day_may_follow;  // the month
};
std::span<const NameWords> name_words();

// "the last 7 days": the words that tell to which side of today the units are counted.
struct CountWord {
  Language language;
  bool future;
  TextView article, one, many;
};
std::span<const CountWord> count_words();

struct UnitName {
  Language language;
  Unit unit;
  TextView one, many;
};
std::span<const UnitName> unit_names();

}  // namespace qvr::query
