// Periods as people say them, on Wednesday 5 January 2011 unless a row says another day.
#include "query/search/date_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "base/date_text.h"
#include "base/utf8.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

constexpr std::int32_t kBehindLastDay = 2958466;  // what would be 1 January 10000

struct Row {
  const char* name;
  Text typed, expected;  // "first..last day"; empty: no such period
  CalendarTime today{2011, 1, 5};
};

std::int32_t day_number(const CalendarTime& day) { return static_cast<std::int32_t>(date_from(day)->days); }

Text shown(const std::optional<query::Period>& period) {
  if (!period) return {};
  EXPECT_TRUE(period->whole_days);
  EXPECT_EQ(period->from.second + period->to.second, 0);
  const auto day = [](std::int32_t number) { return formatted_date(Date{static_cast<double>(number)}, u"dd/mm/yyyy"); };
  return join({day(period->from.day), u"..", day(period->to.day - 1)});
}

std::optional<query::Period> period_in_words(TextView typed, std::int32_t today) {
  const auto form = query::form_in_words(typed, today);
  return form ? form->period : std::nullopt;
}

using DateWords = Rows<::testing::Test, Row>;

TEST_P(DateWords, GiveTheirPeriod) {
  const Row& row = GetParam();
  EXPECT_EQ(shown(period_in_words(row.typed, day_number(row.today))), row.expected);
}

const Row kDays[] = {
    {"hoy", u"hoy", u"05/01/2011..05/01/2011"},
    {"ayer", u"Ayer", u"04/01/2011..04/01/2011"},
    {"anteayer", u"anteayer", u"03/01/2011..03/01/2011"},
    {"antes de ayer", u"antes de ayer", u"03/01/2011..03/01/2011"},
    {"manana without its accent", u"manana", u"06/01/2011..06/01/2011"},
    {"manana", u"ma\u00f1ana", u"06/01/2011..06/01/2011"},
    {"manana with a combining accent", u"man\u0303ana", u"06/01/2011..06/01/2011"},
    {"pasado manana", u"pasado  ma\u00f1ana", u"07/01/2011..07/01/2011"},
    {"blanks around", u"  hoy  ", u"05/01/2011..05/01/2011"},
    {"today", u"TODAY", u"05/01/2011..05/01/2011"},
    {"yesterday", u"yesterday", u"04/01/2011..04/01/2011"},
    {"tomorrow", u"tomorrow", u"06/01/2011..06/01/2011"},
    {"the day before yesterday", u"the day before yesterday", u"03/01/2011..03/01/2011"},
    {"day after tomorrow", u"day after tomorrow", u"07/01/2011..07/01/2011"},
    {"aujourdhui", u"aujourd'hui", u"05/01/2011..05/01/2011"},
    {"aujourdhui with a curly apostrophe", u"aujourd\u2019hui", u"05/01/2011..05/01/2011"},
    {"hier", u"hier", u"04/01/2011..04/01/2011"},
    {"avant hier", u"avant-hier", u"03/01/2011..03/01/2011"},
    {"demain", u"demain", u"06/01/2011..06/01/2011"},
    {"apres demain", u"apr\u00e8s-demain", u"07/01/2011..07/01/2011"},
    {"hoy minus 7", u"hoy-7", u"29/12/2010..29/12/2010"},
    {"hoy minus 7 with blanks", u"hoy  -   7", u"29/12/2010..29/12/2010"},
    {"today plus 3", u"today + 3", u"08/01/2011..08/01/2011"},
    {"manana plus 30", u"ma\u00f1ana+30", u"05/02/2011..05/02/2011"},
    {"avant hier minus 1", u"avant-hier-1", u"02/01/2011..02/01/2011"},
    {"hoy minus a thousand days", u"hoy-1000", u"10/04/2008..10/04/2008"},
    {"hoy minus nothing", u"hoy-", u""},
    {"hoy without a sign", u"hoy 7", u""},
    {"hoy minus a word", u"hoy - x", u""},
    {"hoy minus two numbers", u"hoy - 7 7", u""},
    {"hoy minus beyond reason", u"hoy - 99999999999999999999", u""},
    {"hoy plus beyond the calendar", u"hoy + 2919000", u""},
    {"hoys", u"hoys", u""},
};

const Row kUnits[] = {
    {"esta semana", u"esta semana", u"03/01/2011..09/01/2011"},
    {"semana pasada", u"semana pasada", u"27/12/2010..02/01/2011"},
    {"la semana pasada", u"la semana pasada", u"27/12/2010..02/01/2011"},
    {"proxima semana", u"pr\u00f3xima semana", u"10/01/2011..16/01/2011"},
    {"la semana proxima", u"la semana pr\u00f3xima", u"10/01/2011..16/01/2011"},
    {"la semana que viene", u"la semana que viene", u"10/01/2011..16/01/2011"},
    {"this week on monday", u"this week", u"03/01/2011..09/01/2011", {2011, 1, 3}},
    {"this week on sunday", u"this week", u"03/01/2011..09/01/2011", {2011, 1, 9}},
    {"week over the years end", u"cette semaine", u"27/12/2010..02/01/2011", {2011, 1, 1}},
    {"week before 1900", u"this week", u"25/12/1899..31/12/1899", {1899, 12, 30}},
    {"last week", u"last week", u"27/12/2010..02/01/2011"},
    {"next week", u"next week", u"10/01/2011..16/01/2011"},
    {"la semaine derniere", u"la semaine derni\u00e8re", u"27/12/2010..02/01/2011"},
    {"semaine prochaine", u"semaine prochaine", u"10/01/2011..16/01/2011"},
    {"este mes", u"este mes", u"01/01/2011..31/01/2011"},
    {"mes actual", u"mes actual", u"01/01/2011..31/01/2011"},
    {"el mes pasado", u"el mes pasado", u"01/12/2010..31/12/2010"},
    {"mes anterior", u"mes anterior", u"01/12/2010..31/12/2010"},
    {"el proximo mes", u"el pr\u00f3ximo mes", u"01/02/2011..28/02/2011"},
    {"mes que viene", u"mes que viene", u"01/02/2011..28/02/2011"},
    {"next month in december", u"next month", u"01/01/2012..31/01/2012", {2011, 12, 31}},
    {"the previous month", u"the previous month", u"01/12/2010..31/12/2010"},
    {"ce mois", u"ce mois", u"01/01/2011..31/01/2011"},
    {"ce mois ci", u"ce mois-ci", u"01/01/2011..31/01/2011"},
    {"le mois dernier", u"le mois dernier", u"01/12/2010..31/12/2010"},
    {"mois prochain", u"mois prochain", u"01/02/2011..28/02/2011"},
    {"february of a leap year", u"this month", u"01/02/2012..29/02/2012", {2012, 2, 10}},
    {"este trimestre", u"este trimestre", u"01/01/2011..31/03/2011"},
    {"trimestre pasado", u"trimestre pasado", u"01/10/2010..31/12/2010"},
    {"el trimestre que viene", u"el trimestre que viene", u"01/04/2011..30/06/2011"},
    {"this quarter in may", u"this quarter", u"01/04/2011..30/06/2011", {2011, 5, 31}},
    {"next quarter in december", u"next quarter", u"01/01/2012..31/03/2012", {2011, 12, 1}},
    {"trimestre dernier", u"trimestre dernier", u"01/10/2010..31/12/2010"},
    {"este ano", u"este a\u00f1o", u"01/01/2011..31/12/2011"},
    {"el ano pasado", u"el a\u00f1o pasado", u"01/01/2010..31/12/2010"},
    {"el ano que viene", u"el a\u00f1o que viene", u"01/01/2012..31/12/2012"},
    {"last year", u"last year", u"01/01/2010..31/12/2010"},
    {"cette annee", u"cette ann\u00e9e", u"01/01/2011..31/12/2011"},
    {"lan dernier", u"l'an dernier", u"01/01/2010..31/12/2010"},
    {"lannee prochaine", u"l\u2019ann\u00e9e prochaine", u"01/01/2012..31/12/2012"},
    {"annee derniere", u"annee derniere", u"01/01/2010..31/12/2010"},
    {"week that would begin before the calendar", u"this week", u"", {100, 1, 1}},
    {"month before the calendar", u"last month", u"", {100, 1, 31}},
    {"week that would end behind the calendar", u"this week", u"", {9999, 12, 31}},
    {"last month of the calendar", u"this month", u"01/12/9999..31/12/9999", {9999, 12, 31}},
    {"month behind the calendar", u"next month", u"", {9999, 12, 1}},
    {"tomorrow behind the calendar", u"tomorrow", u"", {9999, 12, 31}},
    {"a month less days", u"este mes - 7", u""},
    {"este", u"este", u""},
    {"semana", u"semana", u""},
    {"two languages", u"last mes", u""},
    {"article of another language", u"le mes pasado", u""},
    {"article of the wrong gender", u"el semana pasada", u""},
    {"article alone", u"la", u""},
    {"more behind", u"semana pasada 2", u""},
};

const Row kNames[] = {
    {"enero", u"enero", u"01/01/2011..31/01/2011"},
    {"ene", u"ENE", u"01/01/2011..31/01/2011"},
    {"ene with a point", u"ene. 2010", u"01/01/2010..31/01/2010"},
    {"only a point behind", u"ene.", u"01/01/2011..31/01/2011"},
    {"ene 2011 with a hyphen", u"ene-2011", u"01/01/2011..31/01/2011"},
    {"enero de", u"enero de 2011", u"01/01/2011..31/01/2011"},
    {"enero del", u"enero del 2011", u"01/01/2011..31/01/2011"},
    {"mayo", u"mayo 2011", u"01/05/2011..31/05/2011"},
    {"mai", u"mai 2011", u"01/05/2011..31/05/2011"},
    {"sept", u"sept. 2011", u"01/09/2011..30/09/2011"},
    {"setiembre", u"setiembre", u"01/09/2011..30/09/2011"},
    {"nov", u"5 nov 2011", u"05/11/2011..05/11/2011"},
    {"january of", u"January of 2011", u"01/01/2011..31/01/2011"},
    {"janv", u"janv. 2011", u"01/01/2011..31/01/2011"},
    {"fevr", u"f\u00e9vr. 2012", u"01/02/2012..29/02/2012"},
    {"aout", u"ao\u00fbt", u"01/08/2011..31/08/2011"},
    {"day de month de year", u"5 de enero de 2011", u"05/01/2011..05/01/2011"},
    {"day month year", u"5 ene 2011", u"05/01/2011..05/01/2011"},
    {"day month year with hyphens", u"05-ene-2011", u"05/01/2011..05/01/2011"},
    {"day month", u"5 enero", u"05/01/2011..05/01/2011"},
    {"el day de month", u"el 5 de enero", u"05/01/2011..05/01/2011"},
    {"ordinal day in spanish", u"1\u00ba de enero", u"01/01/2011..01/01/2011"},
    {"le day month", u"le 5 janvier", u"05/01/2011..05/01/2011"},
    {"ordinal day in french", u"1er janvier", u"01/01/2011..01/01/2011"},
    {"day month year in english", u"5 January 2011", u"05/01/2011..05/01/2011"},
    {"month day comma year", u"January 5, 2011", u"05/01/2011..05/01/2011"},
    {"month day year", u"Jan 5 2010", u"05/01/2010..05/01/2010"},
    {"month day", u"Jan 5", u"05/01/2011..05/01/2011"},
    {"ordinal day before", u"5th January", u"05/01/2011..05/01/2011"},
    {"ordinal day behind", u"January 1st, 2010", u"01/01/2010..01/01/2010"},
    {"the ordinal day of", u"the 3rd of March 2011", u"03/03/2011..03/03/2011"},
    {"leap day", u"29 feb 2012", u"29/02/2012..29/02/2012"},
    {"t1", u"T1 2011", u"01/01/2011..31/03/2011"},
    {"t1 alone", u"t1", u"01/01/2011..31/03/2011"},
    {"1t", u"1T-2010", u"01/01/2010..31/03/2010"},
    {"q4", u"Q4 2010", u"01/10/2010..31/12/2010"},
    {"primer trimestre", u"primer trimestre de 2010", u"01/01/2010..31/03/2010"},
    {"el segundo trimestre", u"el 2\u00ba trimestre", u"01/04/2011..30/06/2011"},
    {"first quarter", u"the first quarter of 2010", u"01/01/2010..31/03/2010"},
    {"1er trimestre", u"1er trimestre 2010", u"01/01/2010..31/03/2010"},
    {"last month by name", u"diciembre 9999", u"01/12/9999..31/12/9999"},
    {"last quarter by name", u"Q4 9999", u"01/10/9999..31/12/9999"},
    {"last day by name", u"31 diciembre 9999", u"31/12/9999..31/12/9999"},
    {"first month by name", u"enero 0100", u"01/01/0100..31/01/0100"},
    {"no leap day", u"29 de febrero de 2011", u""},
    {"impossible day", u"31 de febrero", u""},
    {"day 32", u"32 de enero", u""},
    {"day 0", u"0 enero", u""},
    {"t5", u"T5 2024", u""},
    {"t1 with a day", u"5 T1 2011", u""},
    {"enero de nothing", u"enero de", u""},
    {"de enero", u"de enero", u""},
    {"comma behind", u"enero,", u""},
    {"glued", u"enero2011", u""},
    {"day glued to its month", u"5enero", u""},
    {"two months", u"enero febrero", u""},
    {"two years", u"enero 2011 2012", u""},
    {"spanish day behind its month", u"enero 5", u""},
    {"spanish de before an english month", u"5 de January", u""},
    {"spanish de before a french month", u"5 de janvier", u""},
    {"spanish article before an english month", u"el 5 January", u""},
    {"english ending before a spanish month", u"5th enero", u""},
    {"year 0", u"enero 0", u""},
    {"year 0000", u"enero 0000", u""},
    {"year 99", u"enero 99", u""},
    {"year 0099", u"enero 0099", u""},
    {"year 10000", u"enero 10000", u""},
    {"nothing", u"", u""},
    {"blanks", u"   ", u""},
    {"a date in figures", u"05/01/2011", u""},
};

const Row kCounts[] = {
    {"ultimos dias", u"\u00faltimos 7 d\u00edas", u"30/12/2010..05/01/2011"},
    {"los ultimos dias", u"los ultimos 7 dias", u"30/12/2010..05/01/2011"},
    {"los 7 ultimos dias", u"los 7 \u00faltimos d\u00edas", u"30/12/2010..05/01/2011"},
    {"the last days", u"the last 7 days", u"30/12/2010..05/01/2011"},
    {"last day", u"last 1 day", u"05/01/2011..05/01/2011"},
    {"past weeks", u"past 2 weeks", u"23/12/2010..05/01/2011"},
    {"les derniers jours", u"les 7 derniers jours", u"30/12/2010..05/01/2011"},
    {"les dernieres semaines", u"les 2 derni\u00e8res semaines", u"23/12/2010..05/01/2011"},
    {"ultimas semanas", u"las \u00faltimas 2 semanas", u"23/12/2010..05/01/2011"},
    {"ultimos meses", u"\u00faltimos 3 meses", u"06/10/2010..05/01/2011"},
    {"last month on the 31st", u"last 1 month", u"01/03/2011..31/03/2011", {2011, 3, 31}},
    {"last month on the 31st of a leap year", u"last 1 month", u"01/03/2012..31/03/2012", {2012, 3, 31}},
    {"last month on the 28th", u"last 1 month", u"01/03/2011..28/03/2011", {2011, 3, 28}},
    {"last quarters", u"last 2 quarters", u"06/07/2010..05/01/2011"},
    {"last year on a leap day", u"last 1 year", u"01/03/2011..29/02/2012", {2012, 2, 29}},
    {"dernieres annees", u"2 derni\u00e8res ann\u00e9es", u"06/01/2009..05/01/2011"},
    {"derniers ans", u"les 2 derniers ans", u"06/01/2009..05/01/2011"},
    {"proximos dias", u"pr\u00f3ximos 7 d\u00edas", u"05/01/2011..11/01/2011"},
    {"next days", u"next 7 days", u"05/01/2011..11/01/2011"},
    {"prochains jours", u"7 prochains jours", u"05/01/2011..11/01/2011"},
    {"next weeks over the years end", u"next 1 week", u"28/12/2011..03/01/2012", {2011, 12, 28}},
    {"next months", u"next 2 months", u"05/01/2011..04/03/2011"},
    {"next year on a leap day", u"next 1 year", u"29/02/2012..27/02/2013", {2012, 2, 29}},
    {"next days up to the last", u"next 31 days", u"01/12/9999..31/12/9999", {9999, 12, 1}},
    {"next month up to the last day", u"next 1 month", u"01/12/9999..31/12/9999", {9999, 12, 1}},
    {"next days behind the calendar", u"next 32 days", u"", {9999, 12, 1}},
    {"last days before the calendar", u"last 32 days", u"", {100, 1, 31}},
    {"without a number", u"\u00faltimos d\u00edas", u""},
    {"without a unit", u"\u00faltimos 7", u""},
    {"without a word", u"7 d\u00edas", u""},
    {"two numbers", u"7 last 7 days", u""},
    {"number glued to its unit", u"last 7days", u""},
    {"negative", u"last -7 days", u""},
    {"no days", u"last 0 days", u""},
    {"no months", u"\u00faltimos 0 meses", u""},
    {"beyond reason", u"\u00faltimos 999999999 d\u00edas", u""},
    {"months beyond reason", u"next 999999999999999999999999 months", u""},
    {"two languages", u"last 7 d\u00edas", u""},
    {"two languages the other way", u"\u00faltimos 7 days", u""},
};

INSTANTIATE_TEST_SUITE_P(OfDays, DateWords, ::testing::ValuesIn(kDays), row_name);
INSTANTIATE_TEST_SUITE_P(OfUnits, DateWords, ::testing::ValuesIn(kUnits), row_name);
INSTANTIATE_TEST_SUITE_P(OfNames, DateWords, ::testing::ValuesIn(kNames), row_name);
INSTANTIATE_TEST_SUITE_P(OfCounts, DateWords, ::testing::ValuesIn(kCounts), row_name);

// Every phrase and name of the tables, by its period.
struct Same {
  Text expected;
  std::vector<TextView> phrases;
};
const Same kSame[] = {
    {u"05/01/2011..05/01/2011", {u"hoy", u"today", u"aujourd'hui"}},
    {u"04/01/2011..04/01/2011", {u"ayer", u"yesterday", u"hier"}},
    {u"03/01/2011..03/01/2011",
     {u"anteayer", u"antes de ayer", u"antier", u"day before yesterday", u"avant-hier", u"avant hier"}},
    {u"06/01/2011..06/01/2011", {u"ma\u00f1ana", u"tomorrow", u"demain"}},
    {u"07/01/2011..07/01/2011",
     {u"pasado ma\u00f1ana", u"day after tomorrow", u"apr\u00e8s-demain", u"apr\u00e8s demain"}},
    {u"03/01/2011..09/01/2011",
     {u"esta semana", u"semana actual", u"semana en curso", u"this week", u"current week", u"cette semaine",
      u"semaine en cours"}},
    {u"27/12/2010..02/01/2011",
     {u"semana pasada", u"semana anterior", u"last week", u"previous week", u"semaine derni\u00e8re",
      u"semaine pass\u00e9e", u"semaine pr\u00e9c\u00e9dente"}},
    {u"10/01/2011..16/01/2011",
     {u"pr\u00f3xima semana", u"semana pr\u00f3xima", u"semana que viene", u"next week", u"semaine prochaine"}},
    {u"01/01/2011..31/01/2011",
     {u"este mes", u"mes actual", u"mes en curso", u"this month", u"current month", u"ce mois", u"ce mois-ci",
      u"mois en cours", u"enero", u"ene", u"January", u"Jan", u"janvier", u"janv", u"jan"}},
    {u"01/12/2010..31/12/2010",
     {u"mes pasado", u"mes anterior", u"last month", u"previous month", u"mois dernier", u"mois pass\u00e9",
      u"mois pr\u00e9c\u00e9dent"}},
    {u"01/02/2011..28/02/2011",
     {u"pr\u00f3ximo mes", u"mes pr\u00f3ximo", u"mes que viene", u"next month", u"mois prochain", u"febrero", u"feb",
      u"February", u"Feb", u"f\u00e9vrier", u"f\u00e9vr", u"f\u00e9v"}},
    {u"01/01/2011..31/03/2011",
     {u"este trimestre", u"trimestre actual", u"trimestre en curso", u"this quarter", u"current quarter",
      u"ce trimestre", u"trimestre en cours", u"T1", u"1T", u"primer trimestre", u"1er trimestre", u"Q1",
      u"first quarter", u"1st quarter", u"T1", u"premier trimestre", u"1er trimestre"}},
    {u"01/10/2010..31/12/2010",
     {u"trimestre pasado", u"trimestre anterior", u"last quarter", u"previous quarter", u"trimestre dernier",
      u"trimestre pass\u00e9", u"trimestre pr\u00e9c\u00e9dent"}},
    {u"01/04/2011..30/06/2011",
     {u"pr\u00f3ximo trimestre", u"trimestre pr\u00f3ximo", u"trimestre que viene", u"next quarter",
      u"trimestre prochain", u"T2", u"2T", u"segundo trimestre", u"2\u00ba trimestre", u"Q2", u"second quarter",
      u"2nd quarter", u"T2", u"deuxi\u00e8me trimestre", u"2e trimestre", u"2\u00e8me trimestre"}},
    {u"01/07/2011..30/09/2011",
     {u"T3", u"3T", u"tercer trimestre", u"3er trimestre", u"Q3", u"third quarter", u"3rd quarter", u"T3",
      u"troisi\u00e8me trimestre", u"3e trimestre", u"3\u00e8me trimestre"}},
    {u"01/10/2011..31/12/2011",
     {u"T4", u"4T", u"cuarto trimestre", u"4\u00ba trimestre", u"Q4", u"fourth quarter", u"4th quarter", u"T4",
      u"quatri\u00e8me trimestre", u"4e trimestre", u"4\u00e8me trimestre"}},
    {u"01/01/2011..31/12/2011",
     {u"este a\u00f1o", u"a\u00f1o actual", u"a\u00f1o en curso", u"this year", u"current year", u"cette ann\u00e9e",
      u"ann\u00e9e en cours"}},
    {u"01/01/2010..31/12/2010",
     {u"a\u00f1o pasado", u"a\u00f1o anterior", u"last year", u"previous year", u"ann\u00e9e derni\u00e8re",
      u"ann\u00e9e pass\u00e9e", u"ann\u00e9e pr\u00e9c\u00e9dente", u"an dernier", u"an pass\u00e9"}},
    {u"01/01/2012..31/12/2012",
     {u"pr\u00f3ximo a\u00f1o", u"a\u00f1o pr\u00f3ximo", u"a\u00f1o que viene", u"next year", u"ann\u00e9e prochaine",
      u"an prochain"}},
    {u"01/03/2011..31/03/2011", {u"marzo", u"mar", u"March", u"Mar", u"mars", u"mar"}},
    {u"01/04/2011..30/04/2011", {u"abril", u"abr", u"April", u"Apr", u"avril", u"avr"}},
    {u"01/05/2011..31/05/2011", {u"mayo", u"may", u"May", u"mai"}},
    {u"01/06/2011..30/06/2011", {u"junio", u"jun", u"June", u"Jun", u"juin"}},
    {u"01/07/2011..31/07/2011", {u"julio", u"jul", u"July", u"Jul", u"juillet", u"juil"}},
    {u"01/08/2011..31/08/2011", {u"agosto", u"ago", u"August", u"Aug", u"ao\u00fbt"}},
    {u"01/09/2011..30/09/2011",
     {u"septiembre", u"setiembre", u"sept", u"sep", u"set", u"September", u"Sept", u"Sep", u"septembre", u"sept",
      u"sep"}},
    {u"01/10/2011..31/10/2011", {u"octubre", u"oct", u"October", u"Oct", u"octobre", u"oct"}},
    {u"01/11/2011..30/11/2011", {u"noviembre", u"nov", u"November", u"Nov", u"novembre", u"nov"}},
    {u"01/12/2011..31/12/2011", {u"diciembre", u"dic", u"December", u"Dec", u"d\u00e9cembre", u"d\u00e9c"}},
};
constexpr std::int32_t kToday = 40548;  // 5 January 2011

TEST(DateWordsForms, AreThePhrasesThatPeopleUse) {
  std::size_t phrases = 0, rows = query::periods_beside().size();
  for (const Same& same : kSame) {
    for (const TextView phrase : same.phrases) {
      EXPECT_EQ(shown(period_in_words(phrase, kToday)), same.expected) << to_utf8(phrase);
      ++phrases;
    }
  }
  for (const auto& row : query::named_periods()) {
    rows += row.names.size() - static_cast<std::size_t>(std::ranges::count(row.names, u""));
  }
  EXPECT_EQ(phrases, rows) << "A phrase is not tried here";
}

TEST(DateWordsForms, HaveArticles) {
  for (const query::PeriodBeside& row : query::periods_beside()) {
    const Text whole = join({row.article, row.phrase});
    EXPECT_EQ(shown(period_in_words(whole, kToday)), shown(period_in_words(row.phrase, kToday))) << to_utf8(whole);
  }
}

TEST(DateWordsForms, MayEndBehindTheLastDay) {
  for (const TextView typed : {u"diciembre 9999", u"Q4 9999", u"31 diciembre 9999"}) {
    EXPECT_EQ(period_in_words(typed, 0).value().to, (query::Moment{kBehindLastDay, 0})) << to_utf8(typed);
  }
}

TEST(DateWordsForms, AreKnownThoughTheyHaveNoPeriod) {
  for (const TextView typed :
       {u"31 de febrero", u"29 de febrero de 2011", u"last 0 days", u"hoy + 9999999", u"enero"}) {
    EXPECT_TRUE(query::form_in_words(typed, kToday)) << to_utf8(typed);
  }
  for (const TextView typed : {u"05/01/2011", u"enero 5", u"enero 99", u"este", u""}) {
    EXPECT_FALSE(query::form_in_words(typed, kToday)) << to_utf8(typed);
  }
}

}  // namespace
}  // namespace qvr::tests
