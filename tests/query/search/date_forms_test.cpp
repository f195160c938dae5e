// Dates in words: each form stands wherever the same days in figures do, for every engine and in every locale.
#include <chrono>

#include "base/utf8.h"
#include "query/search/condition_evaluator.h"
#include "query/search/search_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

// A period with its first and its last day, on Wednesday 5 January 2011.
struct DateForm {
  const char* name;
  TextView typed, first, last = first;
};
constexpr DateForm kForms[] = {
    {"es, today", u"hoy", u"2011-01-05"},
    {"es, yesterday", u"ayer", u"2011-01-04"},
    {"es, the day before yesterday", u"anteayer", u"2011-01-03"},
    {"es, tomorrow", u"ma\u00f1ana", u"2011-01-06"},
    {"es, tomorrow without a tilde", u"manana", u"2011-01-06"},
    {"es, tomorrow with a combining tilde", u"man\u0303ana", u"2011-01-06"},
    {"es, the day after tomorrow", u"pasado ma\u00f1ana", u"2011-01-07"},
    {"es, the day after tomorrow without a tilde", u"Pasado  Manana", u"2011-01-07"},
    {"es, days from today", u"hoy + 3", u"2011-01-08"},
    {"es, days before today", u"HOY-7", u"2010-12-29"},
    {"es, days from tomorrow", u"ma\u00f1ana+30", u"2011-02-05"},
    {"es, days before the day before yesterday", u"anteayer - 3", u"2010-12-31"},
    {"es, days from the day after tomorrow", u"pasado ma\u00f1ana + 2", u"2011-01-09"},
    {"es, this week", u"esta semana", u"2011-01-03", u"2011-01-09"},
    {"es, last week", u"semana pasada", u"2010-12-27", u"2011-01-02"},
    {"es, the last week", u"la semana pasada", u"2010-12-27", u"2011-01-02"},
    {"es, next week", u"pr\u00f3xima semana", u"2011-01-10", u"2011-01-16"},
    {"es, next week without an accent", u"proxima semana", u"2011-01-10", u"2011-01-16"},
    {"es, the week to come", u"semana que viene", u"2011-01-10", u"2011-01-16"},
    {"es, this month", u"este mes", u"2011-01-01", u"2011-01-31"},
    {"es, last month", u"mes pasado", u"2010-12-01", u"2010-12-31"},
    {"es, next month", u"pr\u00f3ximo mes", u"2011-02-01", u"2011-02-28"},
    {"es, next month in capitals", u"PR\u00d3XIMO MES", u"2011-02-01", u"2011-02-28"},
    {"es, the month to come", u"mes que viene", u"2011-02-01", u"2011-02-28"},
    {"es, this quarter", u"este trimestre", u"2011-01-01", u"2011-03-31"},
    {"es, last quarter", u"trimestre pasado", u"2010-10-01", u"2010-12-31"},
    {"es, a quarter", u"T1 2011", u"2011-01-01", u"2011-03-31"},
    {"es, a quarter in a small letter", u"t4 2010", u"2010-10-01", u"2010-12-31"},
    {"es, a quarter of this year", u"T2", u"2011-04-01", u"2011-06-30"},
    {"es, this year", u"este a\u00f1o", u"2011-01-01", u"2011-12-31"},
    {"es, this year without a tilde", u"este ano", u"2011-01-01", u"2011-12-31"},
    {"es, last year", u"a\u00f1o pasado", u"2010-01-01", u"2010-12-31"},
    {"es, next year", u"pr\u00f3ximo a\u00f1o", u"2012-01-01", u"2012-12-31"},
    {"es, a month of this year", u"enero", u"2011-01-01", u"2011-01-31"},
    {"es, a month in three letters", u"ene 2011", u"2011-01-01", u"2011-01-31"},
    {"es, a month in three letters and a point", u"Ene. 2011", u"2011-01-01", u"2011-01-31"},
    {"es, a month of a year", u"enero de 2011", u"2011-01-01", u"2011-01-31"},
    {"es, February of a leap year", u"feb 2012", u"2012-02-01", u"2012-02-29"},
    {"es, a day of a month of a year", u"5 de enero de 2011", u"2011-01-05"},
    {"es, a day in three letters", u"5 ene 2011", u"2011-01-05"},
    {"es, a day in three letters and a point", u"05 ENE. 2011", u"2011-01-05"},
    {"es, a day of this year", u"5 enero", u"2011-01-05"},
    {"es, a day of a month of this year", u"5 de enero", u"2011-01-05"},
    {"es, a day of a month and a year", u"31 diciembre 2012", u"2012-12-31"},
    {"es, a leap day", u"29 de febrero de 2012", u"2012-02-29"},
    {"es, last days", u"\u00faltimos 7 d\u00edas", u"2010-12-30", u"2011-01-05"},
    {"es, last days without accents", u"ultimos 7 dias", u"2010-12-30", u"2011-01-05"},
    {"es, last weeks", u"\u00faltimas 2 semanas", u"2010-12-23", u"2011-01-05"},
    {"es, last months", u"\u00faltimos 3 meses", u"2010-10-06", u"2011-01-05"},
    {"es, last years", u"\u00faltimos 2 a\u00f1os", u"2009-01-06", u"2011-01-05"},
    {"es, next days", u"pr\u00f3ximos 7 d\u00edas", u"2011-01-05", u"2011-01-11"},
    {"es, next weeks", u"pr\u00f3ximas 2 semanas", u"2011-01-05", u"2011-01-18"},
    {"es, next months", u"pr\u00f3ximos 2 meses", u"2011-01-05", u"2011-03-04"},
    {"en, today", u"today", u"2011-01-05"},
    {"en, yesterday", u"Yesterday", u"2011-01-04"},
    {"en, tomorrow", u"TOMORROW", u"2011-01-06"},
    {"en, days before today", u"today - 7", u"2010-12-29"},
    {"en, this week", u"this week", u"2011-01-03", u"2011-01-09"},
    {"en, last week", u"last week", u"2010-12-27", u"2011-01-02"},
    {"en, next week", u"next week", u"2011-01-10", u"2011-01-16"},
    {"en, this month", u"this month", u"2011-01-01", u"2011-01-31"},
    {"en, last month", u"last month", u"2010-12-01", u"2010-12-31"},
    {"en, next month", u"Next  Month", u"2011-02-01", u"2011-02-28"},
    {"en, this quarter", u"this quarter", u"2011-01-01", u"2011-03-31"},
    {"en, last quarter", u"last quarter", u"2010-10-01", u"2010-12-31"},
    {"en, a quarter", u"Q1 2011", u"2011-01-01", u"2011-03-31"},
    {"en, a quarter of this year", u"q3", u"2011-07-01", u"2011-09-30"},
    {"en, this year", u"this year", u"2011-01-01", u"2011-12-31"},
    {"en, last year", u"last year", u"2010-01-01", u"2010-12-31"},
    {"en, next year", u"next year", u"2012-01-01", u"2012-12-31"},
    {"en, a month of this year", u"January", u"2011-01-01", u"2011-01-31"},
    {"en, a month of a year", u"January 2010", u"2010-01-01", u"2010-01-31"},
    {"en, a month in three letters", u"Jan 2011", u"2011-01-01", u"2011-01-31"},
    {"en, a month in three letters and a point", u"dec. 2010", u"2010-12-01", u"2010-12-31"},
    {"en, the day first", u"5 January 2011", u"2011-01-05"},
    {"en, the day first in three letters", u"5 Jan 2011", u"2011-01-05"},
    {"en, the day first of this year", u"5 January", u"2011-01-05"},
    {"en, the month first", u"January 5, 2011", u"2011-01-05"},
    {"en, the month first in three letters", u"JAN 5, 2011", u"2011-01-05"},
    {"en, the month first of this year", u"Jan 5", u"2011-01-05"},
    {"en, the month first of this year, two digits", u"January 15", u"2011-01-15"},
    {"en, last days", u"last 7 days", u"2010-12-30", u"2011-01-05"},
    {"en, past weeks", u"past 2 weeks", u"2010-12-23", u"2011-01-05"},
    {"en, last months", u"last 3 months", u"2010-10-06", u"2011-01-05"},
    {"en, past years", u"past 2 years", u"2009-01-06", u"2011-01-05"},
    {"en, next days", u"next 7 days", u"2011-01-05", u"2011-01-11"},
    {"en, next weeks", u"next 2 weeks", u"2011-01-05", u"2011-01-18"},
    {"fr, today", u"aujourd'hui", u"2011-01-05"},
    {"fr, today with a curly apostrophe", u"Aujourd\u2019hui", u"2011-01-05"},
    {"fr, yesterday", u"hier", u"2011-01-04"},
    {"fr, the day before yesterday", u"avant-hier", u"2011-01-03"},
    {"fr, tomorrow", u"demain", u"2011-01-06"},
    {"fr, the day after tomorrow", u"apr\u00e8s-demain", u"2011-01-07"},
    {"fr, the day after tomorrow without an accent", u"APRES-DEMAIN", u"2011-01-07"},
    {"fr, days before the day before yesterday", u"avant-hier - 3", u"2010-12-31"},
    {"fr, days from the day after tomorrow", u"apr\u00e8s-demain+2", u"2011-01-09"},
    {"fr, this week", u"cette semaine", u"2011-01-03", u"2011-01-09"},
    {"fr, last week", u"semaine derni\u00e8re", u"2010-12-27", u"2011-01-02"},
    {"fr, last week with a combining accent", u"semaine dernie\u0300re", u"2010-12-27", u"2011-01-02"},
    {"fr, next week", u"semaine prochaine", u"2011-01-10", u"2011-01-16"},
    {"fr, this month", u"ce mois", u"2011-01-01", u"2011-01-31"},
    {"fr, this very month", u"ce mois-ci", u"2011-01-01", u"2011-01-31"},
    {"fr, last month", u"mois dernier", u"2010-12-01", u"2010-12-31"},
    {"fr, next month", u"mois prochain", u"2011-02-01", u"2011-02-28"},
    {"fr, this quarter", u"ce trimestre", u"2011-01-01", u"2011-03-31"},
    {"fr, last quarter", u"trimestre dernier", u"2010-10-01", u"2010-12-31"},
    {"fr, this year", u"cette ann\u00e9e", u"2011-01-01", u"2011-12-31"},
    {"fr, last year", u"ann\u00e9e derni\u00e8re", u"2010-01-01", u"2010-12-31"},
    {"fr, last year without accents", u"annee derniere", u"2010-01-01", u"2010-12-31"},
    {"fr, last year in the short way", u"l'an dernier", u"2010-01-01", u"2010-12-31"},
    {"fr, last year with a curly apostrophe", u"L\u2019an dernier", u"2010-01-01", u"2010-12-31"},
    {"fr, next year", u"ann\u00e9e prochaine", u"2012-01-01", u"2012-12-31"},
    {"fr, a month of this year", u"janvier", u"2011-01-01", u"2011-01-31"},
    {"fr, a month of a year", u"f\u00e9vrier 2012", u"2012-02-01", u"2012-02-29"},
    {"fr, a month in four letters", u"janv. 2011", u"2011-01-01", u"2011-01-31"},
    {"fr, a month with a combining accent", u"aou\u0302t 2010", u"2010-08-01", u"2010-08-31"},
    {"fr, a day", u"5 janvier 2011", u"2011-01-05"},
    {"fr, a day in four letters", u"5 janv. 2011", u"2011-01-05"},
    {"fr, a day of this year", u"5 janvier", u"2011-01-05"},
    {"fr, the first", u"1er janvier", u"2011-01-01"},
    {"fr, the first of a year", u"1er f\u00e9vrier 2012", u"2012-02-01"},
    {"fr, last days", u"7 derniers jours", u"2010-12-30", u"2011-01-05"},
    {"fr, last weeks", u"les 2 derni\u00e8res semaines", u"2010-12-23", u"2011-01-05"},
    {"fr, last months", u"3 derniers mois", u"2010-10-06", u"2011-01-05"},
    {"fr, last years", u"2 derni\u00e8res ann\u00e9es", u"2009-01-06", u"2011-01-05"},
    {"fr, next days", u"7 prochains jours", u"2011-01-05", u"2011-01-11"},
    {"fr, next weeks", u"2 prochaines semaines", u"2011-01-05", u"2011-01-18"},
};

// What stands around a form, and which of its days in figures stands there as well.
enum class Days { All, First, Last };
struct Place {
  TextView before, behind;
  Days days;
};
constexpr Place kPlaces[] = {
    {u"", u"", Days::All},
    {u"=", u"", Days::All},
    {u"= ", u"", Days::All},
    {u"<>", u"", Days::All},
    {u"!= ", u"", Days::All},
    {u"!", u"", Days::All},
    {u"! ", u"", Days::All},
    {u"no ", u"", Days::All},
    {u"NOT ", u"", Days::All},
    {u"non ", u"", Days::All},
    {u"no <> ", u"", Days::All},
    {u"2008 o ", u"", Days::All},
    {u"", u"; nulo", Days::All},
    {u"", u" y <> 2011-01-06", Days::All},
    {u"<2013-01-01 & <>", u"", Days::All},
    {u"no 2009 e no ", u" u 2008", Days::All},
    {u">=", u"", Days::First},
    {u"< ", u"", Days::First},
    {u"! >= ", u"", Days::First},
    {u"", u"..", Days::First},
    {u"", u" .. 2013-12-31", Days::First},
    {u"!", u"..2013-12-31", Days::First},
    {u"<> ", u"..2013-12-31", Days::First},
    {u"entre ", u" y 2013-12-31", Days::First},
    {u"Between ", u" and 2013-12-31", Days::First},
    {u"entre ", u" et 2013-12-31", Days::First},
    {u"de ", u" a 2013-12-31", Days::First},
    {u"de ", u" \u00e0 2013-12-31", Days::First},
    {u"du ", u" au 2013-12-31", Days::First},
    {u"desde ", u" hasta 2013-12-31", Days::First},
    {u"from ", u" to 2013-12-31", Days::First},
    {u"no entre ", u" y 2013-12-31", Days::First},
    {u"not from ", u" to 2013-12-31", Days::First},
    {u"non de ", u" \u00e0 2013-12-31", Days::First},
    {u"desde ", u"", Days::First},
    {u"a partir de ", u"", Days::First},
    {u"from ", u"", Days::First},
    {u"since ", u"", Days::First},
    {u"depuis ", u"", Days::First},
    {u"\u00e0 partir de ", u"", Days::First},
    {u"no desde ", u"", Days::First},
    {u"a partir de ", u" hasta 2013-12-31", Days::First},
    {u">", u"", Days::Last},
    {u"<= ", u"", Days::Last},
    {u"no <=", u"", Days::Last},
    {u"..", u"", Days::Last},
    {u"2009-01-01..", u"", Days::Last},
    {u"! 2009-01-01 .. ", u"", Days::Last},
    {u"entre 2009-01-01 y ", u"", Days::Last},
    {u"between 2009-01-01 and ", u"", Days::Last},
    {u"entre 2009-01-01 et ", u"", Days::Last},
    {u"de 2009-01-01 a ", u"", Days::Last},
    {u"de 2009-01-01 \u00c0 ", u"", Days::Last},
    {u"du 2009-01-01 au ", u"", Days::Last},
    {u"Desde 2009-01-01 hasta ", u"", Days::Last},
    {u"from 2009-01-01 to ", u"", Days::Last},
    {u"no desde 2009-01-01 hasta ", u"", Days::Last},
    {u"hasta ", u"", Days::Last},
    {u"until ", u"", Days::Last},
    {u"up to ", u"", Days::Last},
    {u"jusqu'\u00e0 ", u"", Days::Last},
    {u"no hasta ", u"", Days::Last},
    {u"since 2009-01-01 until ", u"", Days::Last},
    {u"depuis 2009-01-01 jusqu'\u00e0 ", u"", Days::Last},
};

Text in_figures(const DateForm& form, Days days) {
  if (days == Days::First || form.first == form.last) return Text(days == Days::Last ? form.last : form.first);
  return days == Days::Last ? Text(form.last) : join({form.first, u"..", form.last});
}

Text day_behind(TextView day) {
  using namespace std::chrono;
  const year_month_day next(sys_days(seconds(moment_in(day).value().second) / days(1) * days(1)) + days(1));
  return join({padded(static_cast<int>(next.year()), 4), u"-", padded(static_cast<int>(unsigned{next.month()}), 2),
               u"-", padded(static_cast<int>(unsigned{next.day()}), 2)});
}

class SearchedDateForm : public Rows<SpanishSearch, DateForm> {
 protected:
  // As if its days were typed in figures.
  static void expect_figures(Engine engine) {
    const DateForm& form = GetParam();
    for (const Place& place : kPlaces) {
      const Text typed = join({place.before, form.typed, place.behind});
      const Text figures = join({place.before, in_figures(form, place.days), place.behind});
      const Text found = interpreted(kAlta, engine, typed);
      EXPECT_NE(found, u"no search") << to_utf8(typed);
      EXPECT_EQ(found, interpreted(kAlta, engine, figures)) << to_utf8(typed) << "\n" << to_utf8(figures);
    }
  }
};

TEST_P(SearchedDateForm, IsItsDays) {
  const DateForm& form = GetParam();
  const auto found = query::interpret_search(Engine::Jet, kAlta, form.typed, u"Alta");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->condition, join({u"C.Alta>=#", form.first, u"# And C.Alta<#", day_behind(form.last), u"#"}));
}

TEST_P(SearchedDateForm, IsTheSameInFiguresInEveryLocaleForEveryEngine) {
  for (const Home& home : kHomes) {
    SCOPED_TRACE(home.name);
    live_in(thread, home);
    for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) expect_figures(engine);
  }
}

TEST_P(SearchedDateForm, IsReadWhateverTheLanguage) {
  const Text expected = interpreted(kAlta, Engine::Jet, GetParam().typed);
  for (const TextView number : {u"1", u"3"}) {
    thread.load_language(number);
    const auto found = query::interpret_search(Engine::Jet, kAlta, GetParam().typed, u"Alta");
    ASSERT_TRUE(found);
    EXPECT_TRUE(expected.starts_with(found->condition + u" | "));
  }
}

TEST_P(SearchedDateForm, LooksAtTheClockOnceAtMost) {
  thread.system.days_per_reading = 1;
  const TextView typed = GetParam().typed;
  interpreted(kAlta, Engine::Jet, join({typed, u"; entre ", typed, u" y ", typed, u"; <> ", typed}));
  EXPECT_LE(thread.system.clock_readings, 1);
}

INSTANTIATE_TEST_SUITE_P(, SearchedDateForm, ::testing::ValuesIn(kForms), row_name);

class DatesInWords : public SpanishSearch {};

TEST_F(DatesInWords, AreOfOneDay) {
  thread.system.days_per_reading = 2.0 / 86400;
  const auto at_the_last_second = [&](TextView typed, TextView condition) {
    thread.system.moment = Date{40548 + 86399.0 / 86400};
    thread.system.clock_readings = 0;
    const auto found = query::interpret_search(Engine::Jet, kAlta, typed, u"Alta");
    ASSERT_TRUE(found) << to_utf8(typed);
    EXPECT_EQ(found->condition, condition) << to_utf8(typed);
    EXPECT_EQ(thread.system.clock_readings, 1) << to_utf8(typed);
  };
  at_the_last_second(u"hoy; ayer; ma\u00f1ana",
                     u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-06# Or C.Alta>=#2011-01-04# And C.Alta<#2011-01-05# Or "
                     u"C.Alta>=#2011-01-06# And C.Alta<#2011-01-07#");
  at_the_last_second(u"hoy..hoy", u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-06#");
  at_the_last_second(u"\u00faltimos 7 d\u00edas y <> hoy",
                     u"C.Alta>=#2010-12-30# And C.Alta<#2011-01-06# And "
                     u"(C.Alta<#2011-01-05# Or C.Alta>=#2011-01-06# Or C.Alta Is Null)");
  at_the_last_second(u"entre ayer y ma\u00f1ana o nulo",
                     u"C.Alta>=#2011-01-04# And C.Alta<#2011-01-07# Or (C.Alta Is Null)");
}

// The system's locale takes many of them for a day.
TEST_F(DatesInWords, ComeBeforeWhatTheLocaleReads) {
  for (const DateForm& form : kForms) {
    thread.locale.every_text = std::nullopt;
    const auto expected = query::interpret_search(Engine::Jet, kAlta, form.typed, u"Alta");
    thread.locale.every_text = Date{40000};
    const auto found = query::interpret_search(Engine::Jet, kAlta, form.typed, u"Alta");
    ASSERT_TRUE(expected && found) << form.name;
    EXPECT_EQ(found->condition, expected->condition) << form.name;
  }
}

struct MonthNames {
  const char* name;
  TextView joint;  // before a year, besides a blank
  std::initializer_list<TextView> months[12];
};
const MonthNames kMonthNames[] = {
    {"es",
     u" de ",
     {{u"enero", u"ene"},
      {u"febrero", u"feb"},
      {u"marzo", u"mar"},
      {u"abril", u"abr"},
      {u"mayo", u"may"},
      {u"junio", u"jun"},
      {u"julio", u"jul"},
      {u"agosto", u"ago"},
      {u"septiembre", u"sep", u"sept"},
      {u"octubre", u"oct"},
      {u"noviembre", u"nov"},
      {u"diciembre", u"dic"}}},
    {"en",
     u" ",
     {{u"January", u"Jan"},
      {u"February", u"Feb"},
      {u"March", u"Mar"},
      {u"April", u"Apr"},
      {u"May"},
      {u"June", u"Jun"},
      {u"July", u"Jul"},
      {u"August", u"Aug"},
      {u"September", u"Sep", u"Sept"},
      {u"October", u"Oct"},
      {u"November", u"Nov"},
      {u"December", u"Dec"}}},
    {"fr",
     u" ",
     {{u"janvier", u"janv"},
      {u"f\u00e9vrier", u"f\u00e9vr", u"fevrier", u"fevr"},
      {u"mars"},
      {u"avril", u"avr"},
      {u"mai"},
      {u"juin"},
      {u"juillet", u"juil"},
      {u"ao\u00fbt", u"aout"},
      {u"septembre", u"sept"},
      {u"octobre", u"oct"},
      {u"novembre", u"nov"},
      {u"d\u00e9cembre", u"d\u00e9c", u"decembre", u"dec"}}},
};

class NamedMonth : public Rows<SpanishSearch, MonthNames> {
 protected:
  static void expect_same(TextView typed, TextView figures) {
    const Text found = interpreted(kAlta, Engine::Jet, typed);
    EXPECT_NE(found, u"no search") << to_utf8(typed);
    EXPECT_EQ(found, interpreted(kAlta, Engine::Jet, figures)) << to_utf8(typed);
  }
};

TEST_P(NamedMonth, IsTheMonth) {
  for (int month = 1; month <= 12; ++month) {
    const Text number = padded(month, 2);
    for (const TextView name : GetParam().months[month - 1]) {
      Text capitals(name);
      for (char16_t& unit : capitals) unit = fold(unit);
      for (const TextView typed : {name, TextView(capitals)}) {
        expect_same(typed, u"2011-" + number);
        expect_same(join({typed, u" 2010"}), u"2010-" + number);
        expect_same(join({typed, GetParam().joint, u"2010"}), u"2010-" + number);
        expect_same(join({u"12 ", typed, u" 2010"}), join({u"2010-", number, u"-12"}));
        expect_same(join({u"7 ", typed}), join({u"2011-", number, u"-07"}));
      }
      if (name.size() > 4) continue;
      expect_same(join({name, u"."}), u"2011-" + number);
      expect_same(join({name, u". 2010"}), u"2010-" + number);
      expect_same(join({u"12 ", name, u". 2010"}), join({u"2010-", number, u"-12"}));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, NamedMonth, ::testing::ValuesIn(kMonthNames), row_name);

const NamedSearch kDateFormRows[] = {
    {"this month", kAlta, Engine::Jet, u"este mes", u"C.Alta>=#2011-01-01# And C.Alta<#2011-02-01#",
     u"Alta >= 01/01/2011 y <= 31/01/2011"},
    {"months, SQL Server", kAlta, Engine::SqlServer, u"enero..marzo",
     u"C.Alta>={ d '2011-01-01'} And C.Alta<{ d '2011-04-01'}", u"Alta >= 01/01/2011 y <= 31/03/2011"},
    {"a month to today", kAlta, Engine::Jet, u"desde ene 2010 hasta hoy",
     u"C.Alta>=#2010-01-01# And C.Alta<#2011-01-06#", u"Alta >= 01/01/2010 y <= 05/01/2011"},
    {"not last week", kAlta, Engine::Jet, u"<> semana pasada",
     u"(C.Alta<#2010-12-27# Or C.Alta>=#2011-01-03# Or C.Alta Is Null)", u"Alta < 27/12/2010; > 02/01/2011; Es Nulo"},
    {"last days, SQL Server", kAlta, Engine::SqlServer, u"\u00faltimos 7 d\u00edas",
     u"C.Alta>={ d '2010-12-30'} And C.Alta<{ d '2011-01-06'}", u"Alta >= 30/12/2010 y <= 05/01/2011"},
    {"since last quarter", kAlta, Engine::Jet, u">= trimestre pasado", u"C.Alta>=#2010-10-01#", u"Alta >= 01/10/2010"},
    {"no such day", kAlta, Engine::Jet, u"31 de febrero", u""},
    {"no such day, SQL Server", kAlta, Engine::SqlServer, u"31 de febrero", u""},
    {"no such day, Oracle", kAlta, Engine::Oracle, u"31 de febrero", u""},
    {"a day, Oracle", kAlta, Engine::Oracle, u"anteayer",
     u"C.Alta>= TO_DATE('2011-01-03','YYYY-MM-DD')  And C.Alta< TO_DATE('2011-01-04','YYYY-MM-DD') ",
     u"Alta = 03/01/2011"},
    {"not a day", kAlta, Engine::Jet, u"<> anteayer",
     u"(C.Alta<#2011-01-03# Or C.Alta>=#2011-01-04# Or C.Alta Is Null)", u"Alta <> 03/01/2011"},
    {"a day or none", kAlta, Engine::Jet, u"1er janvier ou nul",
     u"C.Alta>=#2011-01-01# And C.Alta<#2011-01-02# Or (C.Alta Is Null)", u"Alta = 01/01/2011; Es Nulo"},
    {"reversed months", kAlta, Engine::Jet, u"marzo..enero", u"C.Alta>=#2011-01-01# And C.Alta<#2011-04-01#",
     u"Alta >= 01/01/2011 y <= 31/03/2011"},
    {"the last quarter of the calendar", kAlta, Engine::Jet, u"T4 9999", u"C.Alta>=#9999-10-01#",
     u"Alta >= 01/10/9999"},
    {"the last month of the calendar", kAlta, Engine::Jet, u"diciembre de 9999", u"C.Alta>=#9999-12-01#",
     u"Alta >= 01/12/9999"},
    {"the last day of the calendar", kAlta, Engine::Jet, u"31 dic 9999", u"C.Alta>=#9999-12-31#",
     u"Alta >= 31/12/9999"},
    {"a month before all days of SQL Server", kAlta, Engine::SqlServer, u"enero de 1752", u""},
    {"a month before all days of SQL Server but of Oracle", kAlta, Engine::Oracle, u"dic 1752",
     u"C.Alta>= TO_DATE('1752-12-01','YYYY-MM-DD')  And C.Alta< TO_DATE('1753-01-01','YYYY-MM-DD') ",
     u"Alta >= 01/12/1752 y <= 31/12/1752"},
};

using DateFormRow = Rows<SpanishSearch, NamedSearch>;

TEST_P(DateFormRow, GivesConditionAndCriterion) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, DateFormRow, ::testing::ValuesIn(kDateFormRows), row_name);

TEST_F(DatesInWords, AreShownAsTheLocaleWritesThem) {
  speak(thread, kEnglish);
  expect(kAlta, Engine::Jet,
         {{u"last month", u"C.Alta>=#2010-12-01# And C.Alta<#2011-01-01#", u"Alta >= 12/01/2010 and <= 12/31/2010"}});
}

// Today, a search and its only days.
struct TodayRow {
  const char* name;
  TextView today, typed, first, last;
};
constexpr TodayRow kTodays[] = {
    {"leap day, last month", u"2012-02-29", u"mes pasado", u"2012-01-01", u"2012-01-31"},
    {"leap day, last year", u"2012-02-29", u"last year", u"2011-01-01", u"2011-12-31"},
    {"leap day, this month", u"2012-02-29", u"ce mois-ci", u"2012-02-01", u"2012-02-29"},
    {"leap day, the last year's days", u"2012-02-29", u"\u00faltimos 1 a\u00f1os", u"2011-03-01", u"2012-02-29"},
    {"leap day, tomorrow", u"2012-02-29", u"demain", u"2012-03-01", u"2012-03-01"},
    {"last of March, last month", u"2011-03-31", u"last month", u"2011-02-01", u"2011-02-28"},
    {"last of March, next month", u"2011-03-31", u"mes que viene", u"2011-04-01", u"2011-04-30"},
    {"last of March, next quarter's first day", u"2011-03-31", u"ma\u00f1ana", u"2011-04-01", u"2011-04-01"},
    {"last of March, the last month's days", u"2011-03-31", u"last 1 months", u"2011-03-01", u"2011-03-31"},
    {"last of March, the last months' days", u"2011-03-31", u"3 derniers mois", u"2011-01-01", u"2011-03-31"},
    {"last of the year, next week", u"2011-12-31", u"next week", u"2012-01-02", u"2012-01-08"},
    {"last of the year, this week", u"2011-12-31", u"esta semana", u"2011-12-26", u"2012-01-01"},
    {"last of the year, next month", u"2011-12-31", u"mois prochain", u"2012-01-01", u"2012-01-31"},
    {"last of the year, next days", u"2011-12-31", u"pr\u00f3ximos 2 d\u00edas", u"2011-12-31", u"2012-01-01"},
    {"first of the year, last week", u"2012-01-01", u"semana pasada", u"2011-12-19", u"2011-12-25"},
    {"first of the year, this week", u"2012-01-01", u"cette semaine", u"2011-12-26", u"2012-01-01"},
    {"first of the year, last quarter", u"2012-01-01", u"trimestre pasado", u"2011-10-01", u"2011-12-31"},
    {"first of the year, a month", u"2012-01-01", u"diciembre", u"2012-12-01", u"2012-12-31"},
    {"first of the year, the day before yesterday", u"2012-01-01", u"anteayer", u"2011-12-30", u"2011-12-30"},
    {"a Sunday, next week", u"2011-01-09", u"next week", u"2011-01-10", u"2011-01-16"},
    {"a Monday, last week", u"2011-01-10", u"last week", u"2011-01-03", u"2011-01-09"},
};

class SearchedOn : public Rows<SpanishSearch, TodayRow> {};

TEST_P(SearchedOn, IsItsDays) {
  const TodayRow& row = GetParam();
  constexpr std::int64_t kDay = 86400, kFirstOf1970 = 25569;  // as a Date
  for (const double time : {0.0, 0.5, 86399.0 / 86400}) {
    thread.system.moment = Date{static_cast<double>(moment_in(row.today).value().second / kDay + kFirstOf1970) + time};
    const auto found = query::interpret_search(Engine::Jet, kAlta, row.typed, u"Alta");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->condition, join({u"C.Alta>=#", row.first, u"# And C.Alta<#", day_behind(row.last), u"#"}));
  }
}

INSTANTIATE_TEST_SUITE_P(, SearchedOn, ::testing::ValuesIn(kTodays), row_name);

struct NoFormRow {
  const char* name;
  std::initializer_list<TextView> typed;
};
constexpr NoFormRow kNoForms[] = {
    {"words that begin like a form",
     {u"hoyo",
      u"ayeres",
      u"ma\u00f1anas",
      u"anteayeres",
      u"eneros",
      u"marzopan",
      u"mayonesa",
      u"hierro",
      u"demainx",
      u"todays",
      u"tomorrows",
      u"yesterdays",
      u"this weekend",
      u"this weeks",
      u"este mes\u00f3n",
      u"semana pasadas",
      u"Januarys",
      u"Marchioness",
      u"marsouin",
      u"T12",
      u"Q12 2011",
      u"T1x",
      u"ayer noche",
      u"enero fr\u00edo",
      u"5 de eneros",
      u"\u00faltimos 7 d\u00edasx",
      u"1ere janvier",
      u"last 7 daysx"}},
    {"forms that are cut off",
     {u"este",
      u"esta",
      u"pasado",
      u"pasada",
      u"semana",
      u"mes",
      u"a\u00f1o",
      u"trimestre",
      u"pr\u00f3ximo",
      u"pr\u00f3xima",
      u"semana que",
      u"que viene",
      u"this",
      u"last",
      u"next",
      u"week",
      u"month",
      u"cette",
      u"ce",
      u"semaine",
      u"dernier",
      u"l'an",
      u"l'",
      u"T",
      u"Q",
      u"T 2011",
      u"ener",
      u"en",
      u"e",
      u"janu",
      u"Septem",
      u"janvi",
      u"5 de",
      u"de enero",
      u"5 de enero de",
      u"enero de",
      u"January 5,",
      u"1er",
      u"1er de",
      u"\u00faltimos",
      u"\u00faltimos 7",
      u"\u00faltimos d\u00edas",
      u"7 d\u00edas",
      u"pr\u00f3ximos",
      u"pr\u00f3ximos 7",
      u"last 7",
      u"last days",
      u"7 days",
      u"past",
      u"past 2",
      u"next 7",
      u"7 derniers",
      u"7 prochains",
      u"derniers jours",
      u"les jours",
      u"les 7 jours",
      u"7 jours",
      u"avant-",
      u"avant",
      u"apr\u00e8s",
      u"aujourd'",
      u"hoy +",
      u"today -",
      u"ayer 3",
      u"hoy + x",
      u"+3",
      u"hoy +- 3"}},
    {"of two languages",
     {u"this semana",
      u"esta week",
      u"cette semana",
      u"esta semaine",
      u"este month",
      u"last mes",
      u"mes dernier",
      u"mois pasado",
      u"ce mes",
      u"este mois",
      u"semana derni\u00e8re",
      u"semaine pasada",
      u"next a\u00f1o",
      u"a\u00f1o prochain",
      u"ann\u00e9e pasada",
      u"pasado demain",
      u"pasado tomorrow",
      u"apr\u00e8s-ma\u00f1ana",
      u"avant-ayer",
      u"5 de January de 2011",
      u"5 de janvier",
      u"January de 2011",
      u"janvier de 2011",
      u"enero 5, 2011",
      u"1er enero",
      u"1er January",
      u"\u00faltimos 7 days",
      u"last 7 d\u00edas",
      u"7 derniers days",
      u"les 7 last days",
      u"pr\u00f3ximos 7 jours",
      u"next 7 jours",
      u"last 2 semaines",
      u"this trimestre",
      u"este quarter"}},
    {"numbers beyond reason",
     {u"0 de enero",
      u"32 de enero",
      u"31 de febrero",
      u"29 de febrero",
      u"31 abril",
      u"31 June 2011",
      u"February 30, 2011",
      u"0 January",
      u"Jan 0",
      u"31 novembre",
      u"99er janvier",
      u"T0",
      u"T5",
      u"T0 2011",
      u"Q5 2011",
      u"Q0",
      u"\u00faltimos 0 d\u00edas",
      u"last 0 weeks",
      u"0 derniers jours",
      u"pr\u00f3ximos 0 d\u00edas",
      u"\u00faltimos -7 d\u00edas",
      u"last 7.5 days",
      u"last 1000000 days",
      u"\u00faltimos 99999999999999999999 d\u00edas",
      u"next 99999999999999999999 years",
      u"\u00faltimos 2147483648 d\u00edas",
      u"last 4294967297 days",
      u"9999 derni\u00e8res ann\u00e9es",
      u"hoy - 9999999",
      u"hoy + 99999999999999999999",
      u"ayer - 999999",
      u"123456789012345678901234567890 de enero"}},
    {"years outside the calendar",
     {u"0",
      u"99",
      u"10000",
      u"0000",
      u"0099",
      u"01/0000",
      u"0099-12",
      u"01/10000",
      u"01/01/10000",
      u"0099-01-01",
      u"enero de 0",
      u"enero 0000",
      u"enero de 99",
      u"enero 0099",
      u"enero 10000",
      u"January 0",
      u"Jan 99",
      u"janvier 10000",
      u"T1 0",
      u"T1 0099",
      u"Q1 99",
      u"Q1 10000",
      u"5 de enero de 0",
      u"5 enero 99",
      u"5 de enero de 0099",
      u"5 ene 10000",
      u"January 5, 10000",
      u"January 5, 0",
      u"5 January 0099",
      u"1er janvier 99"}},
    {"times of day", {u"14:30", u"14:30:05", u"12 am", u"2 PM", u"2:07 PM", u"0.0", u"0", u"0,5", u"00:00"}},
};

using NoDateForm = Rows<SpanishSearch, NoFormRow>;

TEST_P(NoDateForm, IsNoSearch) {
  for (const TextView typed : GetParam().typed) {
    for (const TextView before : {u"", u">= ", u"<>", u"no ", u"2011 o ", u"desde ", u"hasta ", u"2010-01-01.."}) {
      EXPECT_EQ(interpreted(kAlta, Engine::Jet, join({before, typed})), u"no search") << to_utf8(join({before, typed}));
    }
    EXPECT_EQ(interpreted(kAlta, Engine::SqlServer, typed), u"no search") << to_utf8(typed);
    EXPECT_EQ(interpreted(kAlta, Engine::Oracle, join({typed, u"..2011"})), u"no search") << to_utf8(typed);
  }
}

INSTANTIATE_TEST_SUITE_P(, NoDateForm, ::testing::ValuesIn(kNoForms), row_name);

// A locale may take a time of day for the day that time is counted from.
TEST_F(DatesInWords, AreNoTimesOfDayEvenWhereTheLocaleReadsThem) {
  thread.locale.every_text = Date{0};
  expect(kAlta, Engine::Jet, {{u"12 am", u""}, {u"0.0", u""}, {u"00:00", u""}, {u"0", u""}});
  thread.locale.every_text = Date{0.5};
  expect(kAlta, Engine::Jet, {{u"12 PM", u""}, {u"12:00", u""}, {u"0.5", u""}});
  thread.locale.every_text = std::nullopt;
  expect(kAlta, Engine::Jet, {{u"30/12/1899", u"C.Alta>=#1899-12-30# And C.Alta<#1899-12-31#", u"Alta = 30/12/1899"}});
}

TEST_F(DatesInWords, AreTextOnColumnsOfText) {
  for (const query::SearchColumn& column : {kNombre, kNotas}) {
    for (const DateForm& form : kForms) {
      const TextView typed = form.typed;
      if (typed.find_first_of(u"-+,") != TextView::npos) continue;  // punctuation between words
      const auto found = query::interpret_search(Engine::Jet, column, typed, u"X");
      ASSERT_TRUE(found) << form.name;
      Text expected;
      for (const TextView word : split(typed, u" ")) {
        if (word.empty()) continue;
        expected += join({expected.empty() ? TextView(u"") : u" And ", column.expression, u" LIKE '%",
                          replace_all(word, u"'", u"''"), u"%'"});
      }
      EXPECT_EQ(found->condition, expected) << form.name;
    }
  }
}

}  // namespace
}  // namespace qvr::tests
