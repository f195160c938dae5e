// Numbers and dates as users of seven locales type them and see them again.
#include "query/search/search_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
class SearchLocales : public ::testing::TestWithParam<Home> {
 protected:
  SearchLocales() {
    thread.load_language(u"0");
    live_in(thread, GetParam());
  }
  // With "." as the decimal separator and "," as the thousands separator.
  Text at_home(TextView number) const {
    Text text(number);
    for (char16_t& unit : text) unit = unit == u'.' ? GetParam().decimal : unit == u',' ? GetParam().thousands : unit;
    return text;
  }
  TestThread thread;
};

TEST_P(SearchLocales, ReadTheirOwnNumbers) {
  struct {
    TextView typed, literal;
  } const kNumbers[] = {{u"1234.5", u" 1234.5"},
                        {u"1,234.5", u" 1234.5"},
                        {u"1,234,567", u" 1234567"},
                        {u"-0.25", u"-0.25"},
                        {u"12,345,678.9", u" 12345678.9"}};
  for (const auto& number : kNumbers) {
    const Text typed = at_home(number.typed);
    const auto found = query::interpret_search(Engine::SqlServer, kPrecio, typed, u"Precio");
    ASSERT_TRUE(found) << ::testing::PrintToString(typed);
    EXPECT_EQ(found->condition, join({u"P.Precio=", number.literal}));
    const auto again = query::interpret_search(Engine::SqlServer, kPrecio, TextView(found->criterion).substr(7),
                                               u"Precio");
    ASSERT_TRUE(again) << ::testing::PrintToString(found->criterion);
    EXPECT_EQ(again->condition, found->condition);
  }
  EXPECT_EQ(interpreted(kPrecio, Engine::Jet, join({GetParam().currency, u" ", at_home(u"9.5")})),
            join({u"P.Precio= 9.5 | Precio = ", at_home(u"9.5")}));
}

// A misplaced thousands separator counts as the decimal separator and is never dropped.
TEST_P(SearchLocales, NeverReadANumberTenTimesTooLarge) {
  for (const TextView typed : {u"1.5", u"1,5"}) {
    const Text found = interpreted(kPrecio, Engine::Jet, typed);
    EXPECT_EQ(found, join({u"P.Precio= 1.5 | Precio = ", at_home(u"1.5")}));
  }
}

// Not as other numbers either, which a mark or a blank in a wrong place may have been meant for.
TEST_P(SearchLocales, ReadNoNumbersWithMarksInWrongPlaces) {
  for (const TextView number :
       {u"1,23,456", u"12.5,000", u"1,2345,678", u"1.234.567", u"12,34.5", u"1,234,56", u"1.2.3", u"1,234.5,678",
        u"1,234,5", u"10 20", u"100 200 30", u"1.5 000", u"5. 6", u"1, 000"}) {
    for (const TextView before : {u"", u">= ", u"<>", u"7..", u"hasta "}) {
      const Text typed = join({before, at_home(number)});
      EXPECT_EQ(interpreted(kPrecio, Engine::Jet, typed), u"no search") << ::testing::PrintToString(typed);
    }
  }
}

TEST_P(SearchLocales, ReadBlanksBeforeThreeDigitsAndOneCurrency) {
  for (const TextView typed : {u"1 234 567", u"1 234 567 EUR", u"\u20ac 1 234 567"}) {
    EXPECT_EQ(interpreted(kPrecio, Engine::Jet, typed), u"P.Precio= 1234567 | Precio = 1234567");
  }
  EXPECT_EQ(interpreted(kPrecio, Engine::Jet, join({at_home(u"1,234.5"), u" ", GetParam().currency})),
            join({u"P.Precio= 1234.5 | Precio = ", at_home(u"1234.5")}));
  EXPECT_EQ(interpreted(kPrecio, Engine::Jet, join({GetParam().currency, u"5", GetParam().currency})), u"no search");
}

TEST_P(SearchLocales, ReadTheirOwnDates) {
  const Home& home = GetParam();
  const Text mark(1, home.date_separator);
  const Text typed = home.day_first ? join({u"13", mark, u"02", mark, u"2011"})
                                    : join({u"02", mark, u"13", mark, u"2011"});
  const Text condition = u"C.Alta>=#2011-02-13# And C.Alta<#2011-02-14# | Alta = ";
  EXPECT_EQ(interpreted(kAlta, Engine::Jet, typed), condition + typed);
  EXPECT_EQ(interpreted(kAlta, Engine::Jet, u"2011-02-13"), condition + typed);
}

// Only where the locale has the two halves of a day.
TEST_P(SearchLocales, ReadTheirOwnTimes) {
  const auto found = [] { return interpreted(kAlta, Engine::Jet, u"2011-02-13 2:07 PM").substr(0, 62); };
  EXPECT_EQ(found(), u"no search");
  thread.locale.twelve_hours = true;
  EXPECT_EQ(found(), u"C.Alta>=#2011-02-13 14:07:00# And C.Alta<#2011-02-13 14:08:00#");
  for (const TextView alone : {u"2:07 PM", u"12:00 AM", u"14:07"}) {
    EXPECT_EQ(interpreted(kAlta, Engine::Jet, alone), u"no search");
  }
}

TEST_P(SearchLocales, ReadDaysWithPointsInTheirOwnOrder) {
  const TextView day = GetParam().day_first ? u"2011-01-05" : u"2011-05-01";
  EXPECT_EQ(interpreted(kAlta, Engine::Jet, u"5.1.2011"), interpreted(kAlta, Engine::Jet, day));
}

INSTANTIATE_TEST_SUITE_P(, SearchLocales, ::testing::ValuesIn(kHomes), row_name);

}  // namespace
}  // namespace qvr::tests
