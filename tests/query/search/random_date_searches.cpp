// Random searches for columns of dates, in figures and in words.
#include <algorithm>
#include <chrono>

#include "base/date_text.h"
#include "base/number_text.h"
#include "query/search/random_searches.h"

namespace qvr::tests {
namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month;
using std::chrono::year_month_day;

constexpr std::int64_t kDay = 86400;

std::int64_t second_of(sys_days date) { return date.time_since_epoch().count() * kDay; }
sys_days date_of(int y, unsigned m, unsigned d) { return sys_days(year(y) / month(m) / day(d)); }

const std::int64_t kEndOfCalendar = second_of(date_of(10000, 1, 1));
const std::int64_t kSqlServerBegins = second_of(date_of(1753, 1, 1));

bool is_null(const Cell& cell) { return std::holds_alternative<std::monostate>(cell); }

// A test that no null passes.
template <class Test>
std::function<bool(const Cell&)> date_test(Test test) {
  return [test](const Cell& cell) { return !is_null(cell) && test(std::get<Moment>(cell).second); };
}

// Whole days, the last one before `end`.
struct Period {
  sys_days first, end;
};

enum class Unit { Day, Week, Month, Quarter, Year };

// The period of this kind that the day is in, or so many behind it.
Period period_of(sys_days today, Unit unit, int behind) {
  const year_month_day date(today);
  const year_month this_month = date.year() / date.month();
  const auto months_from = [](year_month first, int count) {
    return Period{sys_days(first / day(1)), sys_days((first + months(count)) / day(1))};
  };
  switch (unit) {
    case Unit::Day: return {today + days(behind), today + days(behind + 1)};
    case Unit::Week: {
      const sys_days monday = today - (std::chrono::weekday(today) - std::chrono::Monday) + days(7 * behind);
      return {monday, monday + days(7)};
    }
    case Unit::Month: return months_from(this_month + months(behind), 1);
    case Unit::Quarter: {
      const unsigned first = (unsigned{date.month()} - 1) / 3 * 3 + 1;
      return months_from(date.year() / month(first) + months(3 * behind), 3);
    }
    default: return months_from((date.year() + std::chrono::years(behind)) / month(1), 12);
  }
}

// The same day so many months on, or the month's last one.
sys_days months_on(sys_days date, int count) {
  const year_month_day from(date);
  const year_month to = from.year() / from.month() + months(count);
  const year_month_day last(to / std::chrono::last);
  return sys_days(to / std::min(from.day(), last.day()));
}

struct UnitWords {
  TextView typed;
  Unit unit;
  int behind;
};
constexpr UnitWords kUnitWords[] = {{u"hoy", Unit::Day, 0},
                                    {u"Ayer", Unit::Day, -1},
                                    {u"anteayer", Unit::Day, -2},
                                    {u"ma\u00f1ana", Unit::Day, 1},
                                    {u"pasado manana", Unit::Day, 2},
                                    {u"TODAY", Unit::Day, 0},
                                    {u"yesterday", Unit::Day, -1},
                                    {u"tomorrow", Unit::Day, 1},
                                    {u"aujourd'hui", Unit::Day, 0},
                                    {u"hier", Unit::Day, -1},
                                    {u"avant-hier", Unit::Day, -2},
                                    {u"demain", Unit::Day, 1},
                                    {u"apr\u00e8s-demain", Unit::Day, 2},
                                    {u"hoy - 3", Unit::Day, -3},
                                    {u"tomorrow+30", Unit::Day, 31},
                                    {u"avant-hier - 7", Unit::Day, -9},
                                    {u"esta semana", Unit::Week, 0},
                                    {u"la semana pasada", Unit::Week, -1},
                                    {u"proxima semana", Unit::Week, 1},
                                    {u"semana que viene", Unit::Week, 1},
                                    {u"this week", Unit::Week, 0},
                                    {u"Last Week", Unit::Week, -1},
                                    {u"next week", Unit::Week, 1},
                                    {u"cette semaine", Unit::Week, 0},
                                    {u"semaine derniere", Unit::Week, -1},
                                    {u"semaine prochaine", Unit::Week, 1},
                                    {u"este mes", Unit::Month, 0},
                                    {u"mes pasado", Unit::Month, -1},
                                    {u"pr\u00f3ximo mes", Unit::Month, 1},
                                    {u"this month", Unit::Month, 0},
                                    {u"last month", Unit::Month, -1},
                                    {u"next month", Unit::Month, 1},
                                    {u"ce mois-ci", Unit::Month, 0},
                                    {u"mois dernier", Unit::Month, -1},
                                    {u"mois prochain", Unit::Month, 1},
                                    {u"este trimestre", Unit::Quarter, 0},
                                    {u"trimestre pasado", Unit::Quarter, -1},
                                    {u"this quarter", Unit::Quarter, 0},
                                    {u"last quarter", Unit::Quarter, -1},
                                    {u"ce trimestre", Unit::Quarter, 0},
                                    {u"trimestre dernier", Unit::Quarter, -1},
                                    {u"este a\u00f1o", Unit::Year, 0},
                                    {u"ano pasado", Unit::Year, -1},
                                    {u"pr\u00f3ximo a\u00f1o", Unit::Year, 1},
                                    {u"this year", Unit::Year, 0},
                                    {u"last year", Unit::Year, -1},
                                    {u"next year", Unit::Year, 1},
                                    {u"cette ann\u00e9e", Unit::Year, 0},
                                    {u"l'an dernier", Unit::Year, -1},
                                    {u"ann\u00e9e prochaine", Unit::Year, 1}};

// So many of a unit up to today, or from today on.
struct CountWords {
  TextView before, behind;
  Unit unit;
  bool next = false;
};
constexpr CountWords kCountWords[] = {{u"\u00faltimos ", u" d\u00edas", Unit::Day},
                                      {u"ultimas ", u" semanas", Unit::Week},
                                      {u"\u00faltimos ", u" meses", Unit::Month},
                                      {u"\u00daLTIMOS ", u" a\u00f1os", Unit::Year},
                                      {u"last ", u" days", Unit::Day},
                                      {u"past ", u" weeks", Unit::Week},
                                      {u"last ", u" months", Unit::Month},
                                      {u"past ", u" years", Unit::Year},
                                      {u"", u" derniers jours", Unit::Day},
                                      {u"les ", u" derni\u00e8res semaines", Unit::Week},
                                      {u"", u" derniers mois", Unit::Month},
                                      {u"les ", u" dernieres annees", Unit::Year},
                                      {u"pr\u00f3ximos ", u" d\u00edas", Unit::Day, true},
                                      {u"pr\u00f3ximas ", u" semanas", Unit::Week, true},
                                      {u"next ", u" days", Unit::Day, true},
                                      {u"next ", u" weeks", Unit::Week, true},
                                      {u"", u" prochains jours", Unit::Day, true}};

Period counted(sys_days today, const CountWords& words, int count) {
  const sys_days tomorrow = today + days(1);
  switch (words.unit) {
    case Unit::Day:
    case Unit::Week: {
      const days all(words.unit == Unit::Week ? 7 * count : count);
      return words.next ? Period{today, today + all} : Period{tomorrow - all, tomorrow};
    }
    default: {
      const int all = words.unit == Unit::Year ? 12 * count : count;
      return {months_on(today, -all) + days(1), tomorrow};
    }
  }
}

// Each language's months, and what it puts between a day, its month and a year.
struct Months {
  TextView names[12][2];
  TextView behind_day, before_year;
};
constexpr Months kMonths[] = {{{{u"enero", u"ene"},
                                {u"febrero", u"FEB."},
                                {u"marzo", u"mar"},
                                {u"Abril", u"abr."},
                                {u"mayo", u"may"},
                                {u"junio", u"jun"},
                                {u"julio", u"jul."},
                                {u"agosto", u"ago"},
                                {u"septiembre", u"sept."},
                                {u"octubre", u"oct"},
                                {u"NOVIEMBRE", u"nov"},
                                {u"diciembre", u"dic"}},
                               u" de ",
                               u" de "},
                              {{{u"January", u"Jan"},
                                {u"February", u"feb."},
                                {u"March", u"MAR"},
                                {u"April", u"Apr"},
                                {u"May", u"may"},
                                {u"June", u"jun."},
                                {u"july", u"Jul"},
                                {u"August", u"Aug."},
                                {u"September", u"Sep"},
                                {u"OCTOBER", u"Oct"},
                                {u"November", u"nov."},
                                {u"December", u"Dec"}},
                               u" ",
                               u" "},
                              {{{u"janvier", u"janv."},
                                {u"f\u00e9vrier", u"f\u00e9vr."},
                                {u"mars", u"Mars"},
                                {u"avril", u"avr."},
                                {u"mai", u"MAI"},
                                {u"juin", u"juin"},
                                {u"juillet", u"juil."},
                                {u"ao\u00fbt", u"aout"},
                                {u"Septembre", u"sept."},
                                {u"octobre", u"oct."},
                                {u"novembre", u"nov"},
                                {u"D\u00c9CEMBRE", u"d\u00e9c."}},
                               u" ",
                               u" "}};

}  // namespace

Text RandomSearches::day_text(int month, int day) const {
  const Text d = padded(day, 2), m = padded(month, 2);
  return join({locale_.day_first ? d : m, u"/", locale_.day_first ? m : d, u"/2011"});
}

RandomSearches::Span RandomSearches::span() {
  const unsigned in = 1 + static_cast<unsigned>(below(2)), on = 1 + static_cast<unsigned>(below(12));
  const int month = static_cast<int>(in), day = static_cast<int>(on);
  const std::int64_t start = second_of(date_of(2011, in, on));
  switch (below(12)) {
    case 0: return {u"2011", second_of(date_of(2011, 1, 1)), second_of(date_of(2012, 1, 1))};
    case 1: return {u"01/2011", second_of(date_of(2011, 1, 1)), second_of(date_of(2011, 2, 1))};
    case 2: return {day_text(month, day) + u" 14:07", start + 50820, start + 50880};
    case 3: return {day_text(month, day) + u" 14:07:09", start + 50829, start + 50830};
    case 4: return {join({u"2011-", padded(month, 2), u"-", padded(day, 2)}), start, start + kDay};
    case 5: return edge_span();
    case 6:
    case 7:
    case 8: return words_span();
    case 9: return named_span();
    default: return {day_text(month, day), start, start + kDay};
  }
}

// At the ends of the calendar, and before what SQL Server's dates hold.
RandomSearches::Span RandomSearches::edge_span() {
  switch (below(6)) {
    case 0: return {u"9999", second_of(date_of(9999, 1, 1)), kEndOfCalendar};
    case 1: return {u"12/9999", second_of(date_of(9999, 12, 1)), kEndOfCalendar};
    case 2: return {u"Q4 9999", second_of(date_of(9999, 10, 1)), kEndOfCalendar};
    case 3: return {u"9999-12-31", second_of(date_of(9999, 12, 31)), kEndOfCalendar};
    case 4: return {u"1011", second_of(date_of(1011, 1, 1)), second_of(date_of(1012, 1, 1))};
    default: return {u"dic 1752", second_of(date_of(1752, 12, 1)), kSqlServerBegins};
  }
}

RandomSearches::Span RandomSearches::words_span() {
  if (below(3) == 0) {
    const int count = 1 + static_cast<int>(below(14));
    const CountWords& words = one_of(kCountWords);
    const Period period = counted(today_, words, count);
    return {join({words.before, decimal(count), words.behind}), second_of(period.first), second_of(period.end)};
  }
  const UnitWords& words = one_of(kUnitWords);
  const Period period = period_of(today_, words.unit, words.behind);
  return {Text(words.typed), second_of(period.first), second_of(period.end)};
}

// A month, a day of one or a quarter, of this year or of another.
RandomSearches::Span RandomSearches::named_span() {
  const bool this_year = below(2) == 0;
  const int in_year = this_year ? static_cast<int>(year_month_day(today_).year()) : 2010 + static_cast<int>(below(3));
  const unsigned in = 1 + static_cast<unsigned>(below(12)), on = 1 + static_cast<unsigned>(below(28));
  const sys_days first = date_of(in_year, in, 1), date = date_of(in_year, in, on);
  const Months& months = one_of(kMonths);
  const TextView name = one_of(months.names[in - 1]);
  const Text of_year = this_year ? Text() : decimal(in_year);
  const auto behind = [&](TextView joint) { return this_year ? Text() : join({joint, of_year}); };
  switch (below(5)) {
    case 0: {
      const Period quarter = period_of(first, Unit::Quarter, 0);
      return {join({below(2) == 0 ? u"T" : u"q", decimal((in + 2) / 3), behind(u" ")}), second_of(quarter.first),
              second_of(quarter.end)};
    }
    case 1:
    case 2: {
      const Period whole = period_of(first, Unit::Month, 0);
      return {join({name, behind(below(2) == 0 ? u" " : months.before_year)}), second_of(whole.first),
              second_of(whole.end)};
    }
    case 3: {
      const bool english = &months == &kMonths[1];
      if (!english) break;
      return {join({name, u" ", decimal(on), behind(u", ")}), second_of(date), second_of(date) + kDay};
    }
    default: break;
  }
  const bool plain = below(2) == 0;
  return {join({decimal(on), plain ? u" " : months.behind_day, name, behind(plain ? u" " : months.before_year)}),
          second_of(date), second_of(date) + kDay};
}

bool RandomSearches::is_before_all(const Span& a) const {
  return engine_ == Engine::SqlServer && a.end <= kSqlServerBegins;
}

MeantSearch RandomSearches::date_atom() {
  const Span a = span();
  const auto inside = [a](std::int64_t s) { return s >= a.first && s < a.end; };
  const auto from = date_test([a](std::int64_t s) { return s >= a.first; });
  const auto behind = date_test([a](std::int64_t s) { return s >= a.end; });
  const auto before = date_test([a](std::int64_t s) { return s < a.first; });
  const auto up_to = date_test([a](std::int64_t s) { return s < a.end; });
  const std::function<bool(const Cell&)> outside = [inside](const Cell& cell) {
    return is_null(cell) || !inside(std::get<Moment>(cell).second);
  };
  // Those that select nothing there are no searches.
  if (is_before_all(a)) {
    switch (below(4)) {
      case 0: return {u">" + a.typed, behind};
      case 1: return {u">= " + a.typed, from};
      case 2: return {u"<>" + a.typed, outside};
      default: return {open_range(a.typed, true), from};
    }
  }
  switch (below(15)) {
    case 0: return {a.typed, date_test(inside)};
    case 1: return {u"=" + a.typed, date_test(inside)};
    case 2: return {(below(2) == 0 ? u"<>" : u"!= ") + a.typed, outside};
    case 3: return {u"<" + a.typed, before};
    case 4: return {u"<= " + a.typed, up_to};
    case 5:
      if (a.end != kEndOfCalendar) return {u">" + a.typed, behind};
      [[fallthrough]];
    case 6: return {open_range(a.typed, true), from};
    case 7: return {open_range(a.typed, false), up_to};
    case 8: return negated({u">=" + a.typed, from});
    case 9: return negated({open_range(a.typed, true), from});
    case 10: return negated({a.typed, date_test(inside)});
    case 11: return negated(date_range());
    case 12: return {(below(2) == 0 ? u"!<>" : u"no <> ") + a.typed, date_test(inside)};
    case 13: return unequal(date_range(true));
    default: return date_range();
  }
}

// From where the one begins to where the other ends; the other way about where that would be nothing.
MeantSearch RandomSearches::date_range(bool with_points) {
  Span a = span(), b = span();
  while (is_before_all(a) && is_before_all(b)) b = span();
  const bool reversed = b.end <= a.first;
  const std::int64_t first = reversed ? b.first : a.first, end = reversed ? a.end : b.end;
  return {with_points ? join({a.typed, u" .. ", b.typed}) : range_text(a.typed, b.typed),
          date_test([=](std::int64_t s) { return first <= s && s < end; })};
}

std::vector<Cell> RandomSearches::date_rows(Engine engine) {
  std::vector<Cell> rows = {Cell()};
  const auto add = [&](std::int64_t second) {
    if (engine != Engine::SqlServer || second >= kSqlServerBegins) rows.push_back(Moment{second});
  };
  for (const unsigned in : {1u, 2u}) {
    for (const unsigned on : {1u, 2u, 3u, 5u, 6u, 9u, 12u, 13u}) {
      for (const std::int64_t second : {0, 50819, 50829, 50880}) add(second_of(date_of(2011, in, on)) + second);
    }
  }
  // The ends of all months around, and the days around all todays.
  for (sys_days first = date_of(2009, 12, 1); first < date_of(2013, 3, 1); first = months_on(first, 1)) {
    add(second_of(first) - 1);
    add(second_of(first));
  }
  for (const sys_days today : kTodays) {
    for (int behind = -15; behind <= 15; ++behind) add(second_of(today + days(behind)) + kDay / 2);
  }
  for (const auto& [y, m, d] : {std::tuple(100, 1u, 1u),
                                {1010, 12u, 31u},
                                {1011, 1u, 1u},
                                {1012, 1u, 1u},
                                {1752, 12u, 31u},
                                {1753, 1u, 1u},
                                {1899, 12u, 30u},
                                {9998, 12u, 31u},
                                {9999, 1u, 1u},
                                {9999, 9u, 30u},
                                {9999, 10u, 1u},
                                {9999, 12u, 1u},
                                {9999, 12u, 30u},
                                {9999, 12u, 31u}}) {
    add(second_of(date_of(y, m, d)));
    add(second_of(date_of(y, m, d)) + kDay - 1);
  }
  return rows;
}

}  // namespace qvr::tests
