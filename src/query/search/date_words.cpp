#include "query/search/date_words.h"

#include <algorithm>

#include "base/date_text.h"
#include "query/search/keyword_form.h"

namespace qvr::query {
namespace {

constexpr PeriodBeside kBeside[] = {
    {Language::Spanish, Unit::Day, 0, u"", u"hoy"},
    {Language::Spanish, Unit::Day, -1, u"", u"ayer"},
    {Language::Spanish, Unit::Day, -2, u"", u"anteayer"},
    {Language::Spanish, Unit::Day, -2, u"", u"antes de ayer"},
    {Language::Spanish, Unit::Day, -2, u"", u"antier"},
    {Language::Spanish, Unit::Day, 1, u"", u"ma\u00f1ana"},
    {Language::Spanish, Unit::Day, 2, u"", u"pasado ma\u00f1ana"},
    {Language::Spanish, Unit::Week, 0, u"", u"esta semana"},
    {Language::Spanish, Unit::Week, 0, u"la ", u"semana actual"},
    {Language::Spanish, Unit::Week, 0, u"la ", u"semana en curso"},
    {Language::Spanish, Unit::Week, -1, u"la ", u"semana pasada"},
    {Language::Spanish, Unit::Week, -1, u"la ", u"semana anterior"},
    {Language::Spanish, Unit::Week, 1, u"la ", u"pr\u00f3xima semana"},
    {Language::Spanish, Unit::Week, 1, u"la ", u"semana pr\u00f3xima"},
    {Language::Spanish, Unit::Week, 1, u"la ", u"semana que viene"},
    {Language::Spanish, Unit::Month, 0, u"", u"este mes"},
    {Language::Spanish, Unit::Month, 0, u"el ", u"mes actual"},
    {Language::Spanish, Unit::Month, 0, u"el ", u"mes en curso"},
    {Language::Spanish, Unit::Month, -1, u"el ", u"mes pasado"},
    {Language::Spanish, Unit::Month, -1, u"el ", u"mes anterior"},
    {Language::Spanish, Unit::Month, 1, u"el ", u"pr\u00f3ximo mes"},
    {Language::Spanish, Unit::Month, 1, u"el ", u"mes pr\u00f3ximo"},
    {Language::Spanish, Unit::Month, 1, u"el ", u"mes que viene"},
    {Language::Spanish, Unit::Quarter, 0, u"", u"este trimestre"},
    {Language::Spanish, Unit::Quarter, 0, u"el ", u"trimestre actual"},
    {Language::Spanish, Unit::Quarter, 0, u"el ", u"trimestre en curso"},
    {Language::Spanish, Unit::Quarter, -1, u"el ", u"trimestre pasado"},
    {Language::Spanish, Unit::Quarter, -1, u"el ", u"trimestre anterior"},
    {Language::Spanish, Unit::Quarter, 1, u"el ", u"pr\u00f3ximo trimestre"},
    {Language::Spanish, Unit::Quarter, 1, u"el ", u"trimestre pr\u00f3ximo"},
    {Language::Spanish, Unit::Quarter, 1, u"el ", u"trimestre que viene"},
    {Language::Spanish, Unit::Year, 0, u"", u"este a\u00f1o"},
    {Language::Spanish, Unit::Year, 0, u"el ", u"a\u00f1o actual"},
    {Language::Spanish, Unit::Year, 0, u"el ", u"a\u00f1o en curso"},
    {Language::Spanish, Unit::Year, -1, u"el ", u"a\u00f1o pasado"},
    {Language::Spanish, Unit::Year, -1, u"el ", u"a\u00f1o anterior"},
    {Language::Spanish, Unit::Year, 1, u"el ", u"pr\u00f3ximo a\u00f1o"},
    {Language::Spanish, Unit::Year, 1, u"el ", u"a\u00f1o pr\u00f3ximo"},
    {Language::Spanish, Unit::Year, 1, u"el ", u"a\u00f1o que viene"},
    {Language::English, Unit::Day, 0, u"", u"today"},
    {Language::English, Unit::Day, -1, u"", u"yesterday"},
    {Language::English, Unit::Day, -2, u"the ", u"day before yesterday"},
    {Language::English, Unit::Day, 1, u"", u"tomorrow"},
    {Language::English, Unit::Day, 2, u"the ", u"day after tomorrow"},
    {Language::English, Unit::Week, 0, u"", u"this week"},
    {Language::English, Unit::Week, 0, u"the ", u"current week"},
    {Language::English, Unit::Week, -1, u"", u"last week"},
    {Language::English, Unit::Week, -1, u"the ", u"previous week"},
    {Language::English, Unit::Week, 1, u"", u"next week"},
    {Language::English, Unit::Month, 0, u"", u"this month"},
    {Language::English, Unit::Month, 0, u"the ", u"current month"},
    {Language::English, Unit::Month, -1, u"", u"last month"},
    {Language::English, Unit::Month, -1, u"the ", u"previous month"},
    {Language::English, Unit::Month, 1, u"", u"next month"},
    {Language::English, Unit::Quarter, 0, u"", u"this quarter"},
    {Language::English, Unit::Quarter, 0, u"the ", u"current quarter"},
    {Language::English, Unit::Quarter, -1, u"", u"last quarter"},
    {Language::English, Unit::Quarter, -1, u"the ", u"previous quarter"},
    {Language::English, Unit::Quarter, 1, u"", u"next quarter"},
    {Language::English, Unit::Year, 0, u"", u"this year"},
    {Language::English, Unit::Year, 0, u"the ", u"current year"},
    {Language::English, Unit::Year, -1, u"", u"last year"},
    {Language::English, Unit::Year, -1, u"the ", u"previous year"},
    {Language::English, Unit::Year, 1, u"", u"next year"},
    {Language::French, Unit::Day, 0, u"", u"aujourd'hui"},
    {Language::French, Unit::Day, -1, u"", u"hier"},
    {Language::French, Unit::Day, -2, u"", u"avant-hier"},
    {Language::French, Unit::Day, -2, u"", u"avant hier"},
    {Language::French, Unit::Day, 1, u"", u"demain"},
    {Language::French, Unit::Day, 2, u"", u"apr\u00e8s-demain"},
    {Language::French, Unit::Day, 2, u"", u"apr\u00e8s demain"},
    {Language::French, Unit::Week, 0, u"", u"cette semaine"},
    {Language::French, Unit::Week, 0, u"la ", u"semaine en cours"},
    {Language::French, Unit::Week, -1, u"la ", u"semaine derni\u00e8re"},
    {Language::French, Unit::Week, -1, u"la ", u"semaine pass\u00e9e"},
    {Language::French, Unit::Week, -1, u"la ", u"semaine pr\u00e9c\u00e9dente"},
    {Language::French, Unit::Week, 1, u"la ", u"semaine prochaine"},
    {Language::French, Unit::Month, 0, u"", u"ce mois"},
    {Language::French, Unit::Month, 0, u"", u"ce mois-ci"},
    {Language::French, Unit::Month, 0, u"le ", u"mois en cours"},
    {Language::French, Unit::Month, -1, u"le ", u"mois dernier"},
    {Language::French, Unit::Month, -1, u"le ", u"mois pass\u00e9"},
    {Language::French, Unit::Month, -1, u"le ", u"mois pr\u00e9c\u00e9dent"},
    {Language::French, Unit::Month, 1, u"le ", u"mois prochain"},
    {Language::French, Unit::Quarter, 0, u"", u"ce trimestre"},
    {Language::French, Unit::Quarter, 0, u"le ", u"trimestre en cours"},
    {Language::French, Unit::Quarter, -1, u"le ", u"trimestre dernier"},
    {Language::French, Unit::Quarter, -1, u"le ", u"trimestre pass\u00e9"},
    {Language::French, Unit::Quarter, -1, u"le ", u"trimestre pr\u00e9c\u00e9dent"},
    {Language::French, Unit::Quarter, 1, u"le ", u"trimestre prochain"},
    {Language::French, Unit::Year, 0, u"", u"cette ann\u00e9e"},
    {Language::French, Unit::Year, 0, u"l'", u"ann\u00e9e en cours"},
    {Language::French, Unit::Year, -1, u"l'", u"ann\u00e9e derni\u00e8re"},
    {Language::French, Unit::Year, -1, u"l'", u"ann\u00e9e pass\u00e9e"},
    {Language::French, Unit::Year, -1, u"l'", u"ann\u00e9e pr\u00e9c\u00e9dente"},
    {Language::French, Unit::Year, -1, u"l'", u"an dernier"},
    {Language::French, Unit::Year, -1, u"l'", u"an pass\u00e9"},
    {Language::French, Unit::Year, 1, u"l'", u"ann\u00e9e prochaine"},
    {Language::French, Unit::Year, 1, u"l'", u"an prochain"},
};

constexpr NamedPeriod kNamed[] = {
    {Language::Spanish, Unit::Month, 1, {u"enero", u"ene"}},
    {Language::Spanish, Unit::Month, 2, {u"febrero", u"feb"}},
    {Language::Spanish, Unit::Month, 3, {u"marzo", u"mar"}},
    {Language::Spanish, Unit::Month, 4, {u"abril", u"abr"}},
    {Language::Spanish, Unit::Month, 5, {u"mayo", u"may"}},
    {Language::Spanish, Unit::Month, 6, {u"junio", u"jun"}},
    {Language::Spanish, Unit::Month, 7, {u"julio", u"jul"}},
    {Language::Spanish, Unit::Month, 8, {u"agosto", u"ago"}},
    {Language::Spanish, Unit::Month, 9, {u"septiembre", u"setiembre", u"sept", u"sep", u"set"}},
    {Language::Spanish, Unit::Month, 10, {u"octubre", u"oct"}},
    {Language::Spanish, Unit::Month, 11, {u"noviembre", u"nov"}},
    {Language::Spanish, Unit::Month, 12, {u"diciembre", u"dic"}},
    {Language::Spanish, Unit::Quarter, 1, {u"T1", u"1T", u"primer trimestre", u"1er trimestre"}},
    {Language::Spanish, Unit::Quarter, 2, {u"T2", u"2T", u"segundo trimestre", u"2\u00ba trimestre"}},
    {Language::Spanish, Unit::Quarter, 3, {u"T3", u"3T", u"tercer trimestre", u"3er trimestre"}},
    {Language::Spanish, Unit::Quarter, 4, {u"T4", u"4T", u"cuarto trimestre", u"4\u00ba trimestre"}},
    {Language::English, Unit::Month, 1, {u"January", u"Jan"}},
    {Language::English, Unit::Month, 2, {u"February", u"Feb"}},
    {Language::English, Unit::Month, 3, {u"March", u"Mar"}},
    {Language::English, Unit::Month, 4, {u"April", u"Apr"}},
    {Language::English, Unit::Month, 5, {u"May"}},
    {Language::English, Unit::Month, 6, {u"June", u"Jun"}},
    {Language::English, Unit::Month, 7, {u"July", u"Jul"}},
    {Language::English, Unit::Month, 8, {u"August", u"Aug"}},
    {Language::English, Unit::Month, 9, {u"September", u"Sept", u"Sep"}},
    {Language::English, Unit::Month, 10, {u"October", u"Oct"}},
    {Language::English, Unit::Month, 11, {u"November", u"Nov"}},
    {Language::English, Unit::Month, 12, {u"December", u"Dec"}},
    {Language::English, Unit::Quarter, 1, {u"Q1", u"first quarter", u"1st quarter"}},
    {Language::English, Unit::Quarter, 2, {u"Q2", u"second quarter", u"2nd quarter"}},
    {Language::English, Unit::Quarter, 3, {u"Q3", u"third quarter", u"3rd quarter"}},
    {Language::English, Unit::Quarter, 4, {u"Q4", u"fourth quarter", u"4th quarter"}},
    {Language::French, Unit::Month, 1, {u"janvier", u"janv", u"jan"}},
    {Language::French, Unit::Month, 2, {u"f\u00e9vrier", u"f\u00e9vr", u"f\u00e9v"}},
    {Language::French, Unit::Month, 3, {u"mars", u"mar"}},
    {Language::French, Unit::Month, 4, {u"avril", u"avr"}},
    {Language::French, Unit::Month, 5, {u"mai"}},
    {Language::French, Unit::Month, 6, {u"juin"}},
    {Language::French, Unit::Month, 7, {u"juillet", u"juil"}},
    {Language::French, Unit::Month, 8, {u"ao\u00fbt"}},
    {Language::French, Unit::Month, 9, {u"septembre", u"sept", u"sep"}},
    {Language::French, Unit::Month, 10, {u"octobre", u"oct"}},
    {Language::French, Unit::Month, 11, {u"novembre", u"nov"}},
    {Language::French, Unit::Month, 12, {u"d\u00e9cembre", u"d\u00e9c"}},
    {Language::French, Unit::Quarter, 1, {u"T1", u"premier trimestre", u"1er trimestre"}},
    {Language::French, Unit::Quarter, 2, {u"T2", u"deuxi\u00e8me trimestre", u"2e trimestre", u"2\u00e8me trimestre"}},
    {Language::French, Unit::Quarter, 3, {u"T3", u"troisi\u00e8me trimestre", u"3e trimestre", u"3\u00e8me trimestre"}},
    {Language::French, Unit::Quarter, 4, {u"T4", u"quatri\u00e8me trimestre", u"4e trimestre", u"4\u00e8me trimestre"}},
};

constexpr NameWords kNameWords[] = {
    {Language::Spanish, u"el ", {u"\u00ba", u"\u00b0"}, u"de", {u"de", u"del"}, false},
    {Language::English, u"the ", {u"st", u"nd", u"rd", u"th"}, u"of", {u"of"}, true},
    {Language::French, u"le ", {u"er"}, {}, {}, false},
};

constexpr CountWord kCountWords[] = {
    {Language::Spanish, false, u"los ", u"\u00faltimo", u"\u00faltimos"},
    {Language::Spanish, false, u"las ", u"\u00faltima", u"\u00faltimas"},
    {Language::Spanish, true, u"los ", u"pr\u00f3ximo", u"pr\u00f3ximos"},
    {Language::Spanish, true, u"las ", u"pr\u00f3xima", u"pr\u00f3ximas"},
    {Language::English, false, u"the ", u"last", u"last"},
    {Language::English, false, u"the ", u"past", u"past"},
    {Language::English, true, u"the ", u"next", u"next"},
    {Language::French, false, u"les ", u"dernier", u"derniers"},
    {Language::French, false, u"les ", u"derni\u00e8re", u"derni\u00e8res"},
    {Language::French, true, u"les ", u"prochain", u"prochains"},
    {Language::French, true, u"les ", u"prochaine", u"prochaines"},
};

constexpr UnitName kUnitNames[] = {
    {Language::Spanish, Unit::Day, u"d\u00eda", u"d\u00edas"},
    {Language::Spanish, Unit::Week, u"semana", u"semanas"},
    {Language::Spanish, Unit::Month, u"mes", u"meses"},
    {Language::Spanish, Unit::Quarter, u"trimestre", u"trimestres"},
    {Language::Spanish, Unit::Year, u"a\u00f1o", u"a\u00f1os"},
    {Language::English, Unit::Day, u"day", u"days"},
    {Language::English, Unit::Week, u"week", u"weeks"},
    {Language::English, Unit::Month, u"month", u"months"},
    {Language::English, Unit::Quarter, u"quarter", u"quarters"},
    {Language::English, Unit::Year, u"year", u"years"},
    {Language::French, Unit::Day, u"jour", u"jours"},
    {Language::French, Unit::Week, u"semaine", u"semaines"},
    {Language::French, Unit::Month, u"mois", u"mois"},
    {Language::French, Unit::Quarter, u"trimestre", u"trimestres"},
    {Language::French, Unit::Year, u"an", u"ans"},
    {Language::French, Unit::Year, u"ann\u00e9e", u"ann\u00e9es"},
};

// The calendar.

using Found = std::optional<Period>;

CalendarTime calendar_day(std::int32_t day) { return calendar_time(Date{static_cast<double>(day)}); }

std::int64_t month_of(std::int32_t day) {
  const CalendarTime time = calendar_day(day);
  return month_number(time.year, time.month);
}

int months_in(Unit unit) { return unit == Unit::Year ? 12 : unit == Unit::Quarter ? 3 : 1; }

Found beside(Unit unit, std::int64_t steps, std::int32_t today) {
  constexpr std::int32_t kMonday = 2;  // 1 January 1900
  if (unit == Unit::Day) return days(today + steps, today + steps + 1);
  if (unit == Unit::Week) {
    const std::int32_t weekday = ((today - kMonday) % 7 + 7) % 7;
    return days(today - weekday + 7 * steps, today - weekday + 7 * steps + 7);
  }
  const std::int64_t month = month_of(today), length = months_in(unit);
  return months(month - month % length + steps * length, length);
}

// The same day of another month, or that month's last one.
std::optional<std::int32_t> same_day(std::int32_t day, std::int64_t months_on) {
  const std::int64_t month = month_of(day) + months_on;
  int wanted = calendar_day(day).day;
  while (wanted > 28 && !day_of(month, wanted)) --wanted;
  return day_of(month, wanted);
}

// So many units up to and with today, or from today on.
Found counted_units(Unit unit, std::int64_t count, bool future, std::int32_t today) {
  if (unit == Unit::Day || unit == Unit::Week) {
    const std::int64_t length = count * (unit == Unit::Week ? 7 : 1);
    return future ? days(today, today + length) : days(today + 1 - length, today + 1);
  }
  const auto other = same_day(today, count * months_in(unit) * (future ? 1 : -1));
  if (!other) return std::nullopt;
  return future ? days(today, *other) : days(*other + 1, today + 1);
}

// Words.

// A text that is read word by word; between two words stand blanks, and one of the marks.
class Words {
 public:
  Words(TextView text, TextView marks) : rest_(text), marks_(marks) {}

  bool at_end() const { return rest_.empty(); }
  void skip(TextView article) { rest_.remove_prefix(phrase_length(rest_, article)); }

  bool take(TextView word) {
    const std::size_t length = phrase_length(rest_, word);
    if (length == 0 || !ends_word(length)) return false;
    pass(length);
    return true;
  }

  bool take_any(std::span<const TextView> words) {
    return std::ranges::any_of(words, [&](TextView word) { return take(word); });
  }

  // A whole number; one that no calendar has room for is as good as any other such.
  std::optional<int> number(std::size_t least_digits, std::size_t most_digits, std::span<const TextView> endings = {}) {
    std::size_t length = std::min(rest_.find_first_not_of(u"0123456789"), rest_.size());
    if (length < least_digits || length > most_digits) return std::nullopt;
    int value = 0;
    for (const char16_t digit : rest_.substr(0, length)) value = std::min(value * 10 + (digit - u'0'), 10'000'000);
    for (const TextView ending : endings) {
      const std::size_t behind = length + phrase_length(rest_.substr(length), ending);
      if (ends_word(behind)) length = behind;
    }
    if (!ends_word(length)) return std::nullopt;
    pass(length);
    return value;
  }

 private:
  bool is_mark(char16_t unit) const { return marks_.find(unit) != TextView::npos; }
  bool ends_word(std::size_t at) const { return at == rest_.size() || rest_[at] == u' ' || is_mark(rest_[at]); }

  void pass(std::size_t length) {
    rest_ = trimmed(rest_.substr(length));
    const bool mark = !rest_.empty() && is_mark(rest_[0]);
    if (mark && (rest_.size() > 1 || rest_[0] == u'.')) rest_ = trimmed(rest_.substr(1));
  }

  TextView rest_, marks_;
};

using Read = std::optional<FormInWords>;

// "+7" and "- 7" behind a day.
std::optional<std::int64_t> signed_days(TextView typed) {
  if (typed.empty()) return 0;
  if (typed[0] != u'+' && typed[0] != u'-') return std::nullopt;
  Words words(trimmed(typed.substr(1)), {});
  const auto count = words.number(1, typed.size());
  if (!count || !words.at_end()) return std::nullopt;
  return typed[0] == u'-' ? -*count : *count;
}

Read beside_today(TextView typed, std::int32_t today) {
  for (const PeriodBeside& row : kBeside) {
    const TextView bare = typed.substr(phrase_length(typed, row.article));
    const std::size_t length = phrase_length(bare, row.phrase);
    if (length == 0) continue;
    const TextView behind = trimmed(bare.substr(length));
    const auto more = signed_days(behind);
    if (more && (behind.empty() || row.unit == Unit::Day))
      return FormInWords{beside(row.unit, row.steps + *more, today)};
  }
  return std::nullopt;
}

// What is told beside the name of a month or quarter.
struct Told {
  std::optional<int> day, year;
};

std::optional<Told> told_beside(TextView name, TextView typed, const NameWords& language, bool with_day) {
  constexpr TextView kMarks = u"-/.,";
  Words words(typed, kMarks);
  Told told;
  words.skip(language.article);
  if (with_day) told.day = words.number(1, 2, language.behind_day_number);
  if (told.day) words.take(language.before_month);
  if (!words.take(name)) return std::nullopt;
  if (with_day && !told.day && language.day_may_follow) told.day = words.number(1, 2, language.behind_day_number);
  const bool year_follows = words.take_any(language.before_year);
  told.year = words.number(4, 4);
  return words.at_end() && (told.year || !year_follows) ? std::optional(told) : std::nullopt;
}

Found named_period(const NamedPeriod& named, const Told& told, std::int32_t today) {
  const std::int64_t year = told.year.value_or(calendar_day(today).year);
  const std::int64_t length = months_in(named.unit), first = month_number(year, 1) + (named.number - 1) * length;
  if (!told.day) return months(first, length);
  const auto day = day_of(first, *told.day);
  return day ? days(*day, *day + 1) : std::nullopt;
}

Read named(TextView typed, std::int32_t today) {
  for (const NamedPeriod& row : kNamed) {
    const NameWords& language = *std::ranges::find(kNameWords, row.language, &NameWords::language);
    for (const TextView name : row.names) {
      const auto told = told_beside(name, typed, language, row.unit == Unit::Month);
      if (told) return FormInWords{named_period(row, *told, today)};
    }
  }
  return std::nullopt;
}

// The number may stand on either side of the word.
std::optional<int> count_in(TextView typed, const CountWord& word, const UnitName& unit) {
  Words words(typed, {});
  words.skip(word.article);
  auto count = words.number(1, typed.size());
  if (!words.take_any(std::array{word.one, word.many})) return std::nullopt;
  if (!count) count = words.number(1, typed.size());
  return words.take_any(std::array{unit.one, unit.many}) && words.at_end() ? count : std::nullopt;
}

Read counted(TextView typed, std::int32_t today) {
  for (const CountWord& word : kCountWords) {
    for (const UnitName& unit : kUnitNames) {
      if (unit.language != word.language) continue;
      if (const auto count = count_in(typed, word, unit)) {
        return FormInWords{counted_units(unit.unit, *count, word.future, today)};
      }
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<FormInWords> form_in_words(TextView typed, std::int32_t today) {
  for (const auto read : {beside_today, named, counted}) {
    if (const Read form = read(trimmed(typed), today)) return form;
  }
  return std::nullopt;
}

std::span<const PeriodBeside> periods_beside() { return kBeside; }
std::span<const NamedPeriod> named_periods() { return kNamed; }
std::span<const NameWords> name_words() { return kNameWords; }
std::span<const CountWord> count_words() { return kCountWords; }
std::span<const UnitName> unit_names() { return kUnitNames; }

}  // namespace qvr::query
