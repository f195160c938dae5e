// The ends of the calendar, and of what SQL Server's dates hold; days as one types them beside months.
#include "base/utf8.h"
#include "query/search/search_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

const NamedSearch kCalendarRows[] = {
    {"the last day", kAlta, Engine::Jet, u"31/12/9999", u"C.Alta>=#9999-12-31#", u"Alta >= 31/12/9999"},
    {"the last day, SQL Server", kAlta, Engine::SqlServer, u"9999-12-31", u"C.Alta>={ d '9999-12-31'}",
     u"Alta >= 31/12/9999"},
    {"the last day but one", kAlta, Engine::Jet, u"30/12/9999", u"C.Alta>=#9999-12-30# And C.Alta<#9999-12-31#",
     u"Alta = 30/12/9999"},
    {"the last month", kAlta, Engine::Jet, u"12/9999", u"C.Alta>=#9999-12-01#", u"Alta >= 01/12/9999"},
    {"the last month but one", kAlta, Engine::Jet, u"11/9999", u"C.Alta>=#9999-11-01# And C.Alta<#9999-12-01#",
     u"Alta >= 01/11/9999 y <= 30/11/9999"},
    {"the last year", kAlta, Engine::Jet, u"9999", u"C.Alta>=#9999-01-01#", u"Alta >= 01/01/9999"},
    {"the last year, Oracle", kAlta, Engine::Oracle, u"=9999", u"C.Alta>= TO_DATE('9999-01-01','YYYY-MM-DD') ",
     u"Alta >= 01/01/9999"},
    {"to the last year", kAlta, Engine::Jet, u"2011..9999", u"C.Alta>=#2011-01-01#", u"Alta >= 01/01/2011"},
    {"to the last day in words", kAlta, Engine::Jet, u"desde 2011 hasta 31/12/9999", u"C.Alta>=#2011-01-01#",
     u"Alta >= 01/01/2011"},
    {"up to the last day", kAlta, Engine::Jet, u"<=31/12/9999", u"Not (C.Alta Is Null)", u"Alta <> Es Nulo"},
    {"up to the last year", kAlta, Engine::Jet, u"..9999", u"Not (C.Alta Is Null)", u"Alta <> Es Nulo"},
    {"up to the last year in words", kAlta, Engine::Jet, u"hasta 9999", u"Not (C.Alta Is Null)", u"Alta <> Es Nulo"},
    {"behind the last year", kAlta, Engine::Jet, u"> 9999", u""},
    {"behind the last day", kAlta, Engine::Jet, u">31/12/9999", u""},
    {"from the last year", kAlta, Engine::Jet, u">= 9999", u"C.Alta>=#9999-01-01#", u"Alta >= 01/01/9999"},
    {"before the last day", kAlta, Engine::Jet, u"<31/12/9999", u"C.Alta<#9999-12-31#", u"Alta < 31/12/9999"},
    {"other than the last year", kAlta, Engine::Jet, u"<> 9999", u"C.Alta<#9999-01-01# Or (C.Alta Is Null)",
     u"Alta < 01/01/9999; Es Nulo"},
    {"other than the last day", kAlta, Engine::Jet, u"no 31/12/9999", u"C.Alta<#9999-12-31# Or (C.Alta Is Null)",
     u"Alta < 31/12/9999; Es Nulo"},
    {"the first year", kAlta, Engine::Jet, u"0100", u"C.Alta>=#0100-01-01# And C.Alta<#0101-01-01#",
     u"Alta >= 01/01/0100 y <= 31/12/0100"},
    {"an early year", kAlta, Engine::Jet, u"1011", u"C.Alta>=#1011-01-01# And C.Alta<#1012-01-01#",
     u"Alta >= 01/01/1011 y <= 31/12/1011"},
    {"behind an early year, Oracle", kAlta, Engine::Oracle, u">1011", u"C.Alta>= TO_DATE('1012-01-01','YYYY-MM-DD') ",
     u"Alta > 31/12/1011"},
    {"behind an early year, SQL Server", kAlta, Engine::SqlServer, u">1011", u"C.Alta>={ d '1753-01-01'}",
     u"Alta >= 01/01/1753"},
    {"from an early year, SQL Server", kAlta, Engine::SqlServer, u">=1011", u"C.Alta>={ d '1753-01-01'}",
     u"Alta >= 01/01/1753"},
    {"from an early day in words, SQL Server", kAlta, Engine::SqlServer, u"desde 05/01/1011",
     u"C.Alta>={ d '1753-01-01'}", u"Alta >= 01/01/1753"},
    {"before an early year, SQL Server", kAlta, Engine::SqlServer, u"<1011", u""},
    {"up to an early year, SQL Server", kAlta, Engine::SqlServer, u"<=1011", u""},
    {"an early year, SQL Server", kAlta, Engine::SqlServer, u"1011", u""},
    {"equal to an early year, SQL Server", kAlta, Engine::SqlServer, u"=1011", u""},
    {"an early day, SQL Server", kAlta, Engine::SqlServer, u"31/12/1752", u""},
    {"an early minute, SQL Server", kAlta, Engine::SqlServer, u"31/12/1752 23:59", u""},
    {"early years, SQL Server", kAlta, Engine::SqlServer, u"1011..1752", u""},
    {"from an early year to a late one, SQL Server", kAlta, Engine::SqlServer, u"1011..2011",
     u"C.Alta>={ d '1753-01-01'} And C.Alta<{ d '2012-01-01'}", u"Alta >= 01/01/1753 y <= 31/12/2011"},
    {"other than an early year, SQL Server", kAlta, Engine::SqlServer, u"<>1011",
     u"C.Alta>={ d '1753-01-01'} Or (C.Alta Is Null)", u"Alta >= 01/01/1753; Es Nulo"},
    {"the first year of SQL Server", kAlta, Engine::SqlServer, u"1753",
     u"C.Alta>={ d '1753-01-01'} And C.Alta<{ d '1754-01-01'}", u"Alta >= 01/01/1753 y <= 31/12/1753"},
    {"before the first year of SQL Server", kAlta, Engine::SqlServer, u"<1753", u""},
    {"the first day of SQL Server", kAlta, Engine::SqlServer, u"01/01/1753",
     u"C.Alta>={ d '1753-01-01'} And C.Alta<{ d '1753-01-02'}", u"Alta = 01/01/1753"},
    {"all years, SQL Server", kAlta, Engine::SqlServer, u"1011..9999", u"C.Alta>={ d '1753-01-01'}",
     u"Alta >= 01/01/1753"},
    {"a year that is none", kAlta, Engine::Jet, u"10000", u""},
    {"a day of a year that is none", kAlta, Engine::Jet, u"01/01/10000", u""},
    {"a year before all", kAlta, Engine::Jet, u"0099", u""},
    {"the last minute", kAlta, Engine::Jet, u"31/12/9999 23:59", u"C.Alta>=#9999-12-31 23:59:00#",
     u"Alta >= 31/12/9999 23:59"},
    {"the last minute but one", kAlta, Engine::Jet, u"31/12/9999 23:58",
     u"C.Alta>=#9999-12-31 23:58:00# And C.Alta<#9999-12-31 23:59:00#", u"Alta = 31/12/9999 23:58"},
};

using SearchedCalendar = Rows<SpanishSearch, NamedSearch>;

TEST_P(SearchedCalendar, HasEnds) { expect(GetParam()); }

TEST_P(SearchedCalendar, CanBeTypedAgainAsShown) {
  const NamedSearch& row = GetParam();
  if (row.condition.empty()) return;
  const TextView shown = TextView(row.criterion).substr(5);  // without the label
  EXPECT_EQ(interpreted(row.column, row.engine, shown), join({row.condition, u" | ", row.criterion}));
}

INSTANTIATE_TEST_SUITE_P(, SearchedCalendar, ::testing::ValuesIn(kCalendarRows), row_name);

TEST_F(SpanishSearch, DaysWithPointsAreDaysInEveryLocaleThatPutsThemFirst) {
  for (const Home& home : kHomes) {
    if (!home.day_first) continue;
    live_in(thread, home);
    for (const TextView typed : {u"5.1.2011", u"05.01.2011", u"05/01/2011", u"2011-01-05"}) {
      const auto found = query::interpret_search(Engine::Jet, kAlta, typed, u"Alta");
      ASSERT_TRUE(found) << home.name << " " << to_utf8(typed);
      EXPECT_EQ(found->condition, u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-06#") << home.name;
    }
    for (const TextView typed : {u"02.2011", u"2.2011", u"02/2011", u"2011-02"}) {
      const auto found = query::interpret_search(Engine::Jet, kAlta, typed, u"Alta");
      ASSERT_TRUE(found) << home.name << " " << to_utf8(typed);
      EXPECT_EQ(found->condition, u"C.Alta>=#2011-02-01# And C.Alta<#2011-03-01#") << home.name;
    }
    for (const TextView typed :
         {u"32.1.2011", u"5.13.2011", u"0.1.2011", u"5.1.10000", u"5.1.", u".1.2011", u"5..2011.1"}) {
      EXPECT_EQ(interpreted(kAlta, Engine::Jet, typed), u"no search") << home.name << " " << to_utf8(typed);
    }
  }
}

}  // namespace
}  // namespace qvr::tests
