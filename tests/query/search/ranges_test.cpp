// Ranges: which end is the first one, what negates them, and what only looks like one.
#include "base/utf8.h"
#include "query/search/search_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

class SearchRanges : public SpanishSearch {};

const NamedSearch kRangeOfPeriodsRows[] = {
    {"a day to a year", kAlta, Engine::Jet, u"15/02/2011..2011", u"C.Alta>=#2011-02-15# And C.Alta<#2012-01-01#",
     u"Alta >= 15/02/2011 y <= 31/12/2011"},
    {"today to a year", kAlta, Engine::Jet, u"hoy..2011", u"C.Alta>=#2011-01-05# And C.Alta<#2012-01-01#",
     u"Alta >= 05/01/2011 y <= 31/12/2011"},
    {"a month to a year", kAlta, Engine::Jet, u"02/2011..2011", u"C.Alta>=#2011-02-01# And C.Alta<#2012-01-01#",
     u"Alta >= 01/02/2011 y <= 31/12/2011"},
    {"a day to a month in words", kAlta, Engine::Jet, u"desde 15/02/2011 hasta 02/2011",
     u"C.Alta>=#2011-02-15# And C.Alta<#2011-03-01#", u"Alta >= 15/02/2011 y <= 28/02/2011"},
    {"a year to a day", kAlta, Engine::Jet, u"2011..15/02/2011", u"C.Alta>=#2011-01-01# And C.Alta<#2011-02-16#",
     u"Alta >= 01/01/2011 y <= 15/02/2011"},
    {"a day to a year, negated", kAlta, Engine::Jet, u"!15/02/2011..2011",
     u"(C.Alta<#2011-02-15# Or C.Alta>=#2012-01-01# Or C.Alta Is Null)", u"Alta < 15/02/2011; > 31/12/2011; Es Nulo"},
    {"names of months with points", kAlta, Engine::Jet, u"ene...mar.", u"C.Alta>=#2011-01-01# And C.Alta<#2011-04-01#",
     u"Alta >= 01/01/2011 y <= 31/03/2011"},
    {"a minute to a day", kAlta, Engine::Jet, u"05/01/2011 14:07..05/01/2011",
     u"C.Alta>=#2011-01-05 14:07:00# And C.Alta<#2011-01-06#", u"Alta >= 05/01/2011 14:07 y <= 05/01/2011"},
};

using RangeOfPeriods = Rows<SpanishSearch, NamedSearch>;

TEST_P(RangeOfPeriods, EndsWhereTheLastOneEnds) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, RangeOfPeriods, ::testing::ValuesIn(kRangeOfPeriodsRows), row_name);

TEST_F(SearchRanges, ThatWouldBeEmptyAreReversed) {
  expect(kAlta, Engine::Jet,
         {{u"2011..2010", u"C.Alta>=#2010-01-01# And C.Alta<#2012-01-01#", u"Alta >= 01/01/2010 y <= 31/12/2011"},
          {u"2011..31/12/2010", u"C.Alta>=#2010-12-31# And C.Alta<#2012-01-01#",
           u"Alta >= 31/12/2010 y <= 31/12/2011"}});
}

// The last end stands for all that begins with it.
TEST_F(SearchRanges, OfTextsEndBehindAllThatBeginsWithTheirLastEnd) {
  expect(kNombre, Engine::Jet,
         {{u"martin..M", u"C.Nombre>='martin' And (C.Nombre<='M' Or C.Nombre LIKE 'M%')", u"Nombre >= martin y <= M*"},
          {u"martin..k", u"C.Nombre>='k' And (C.Nombre<='martin' Or C.Nombre LIKE 'martin%')",
           u"Nombre >= k y <= martin*"}});
}

// The "and" between their ends is theirs, and the next one joins another search.
constexpr char16_t kOutside[] = u"(P.Precio< 10 Or P.Precio> 20 Or P.Precio Is Null)";
constexpr char16_t kShown[] = u"Precio < 10; > 20; Es Nulo";
const NamedSearch kNegatedRangeRows[] = {
    {"by a sign", kPrecio, Engine::Jet, u"!entre 10 y 20", kOutside, kShown},
    {"in Spanish", kPrecio, Engine::Jet, u"no entre 10 y 20", kOutside, kShown},
    {"in English", kPrecio, Engine::Jet, u"NOT  between 20 and 10", kOutside, kShown},
    {"in French", kPrecio, Engine::Jet, u"non entre 10 et 20", kOutside, kShown},
    {"of a range from an end to the other", kPrecio, Engine::Jet, u"no de 10 a 20", kOutside, kShown},
    {"of a range from an end to the other in English", kPrecio, Engine::Jet, u"not from 10 to 20", kOutside, kShown},
    {"behind an alternative", kPrecio, Engine::Jet, u"5 o no entre 10 y 20", join({u"P.Precio= 5 Or ", kOutside}),
     u"Precio = 5; < 10; > 20; Es Nulo"},
    {"before another condition", kPrecio, Engine::Jet, u"no entre 10 y 20 y <15",
     join({kOutside, u" And P.Precio< 15"}), u"Precio <> 10..20 y < 15"},
    {"behind another condition", kPrecio, Engine::Jet, u"<15 y no entre 10 y 20",
     join({u"P.Precio< 15 And ", kOutside}), u"Precio < 15 y <> 10..20"},
    {"by an operator", kPrecio, Engine::Jet, u"<> 20..10", kOutside, kShown},
    {"by the other operator", kPrecio, Engine::Jet, u"!=10 .. 20", kOutside, kShown},
    {"by an operator before another condition", kPrecio, Engine::Jet, u"<>10..20 & <15",
     join({kOutside, u" And P.Precio< 15"}), u"Precio <> 10..20 y < 15"},
    {"by an operator twice negated", kPrecio, Engine::Jet, u"!<>10..20", u"P.Precio>= 10 And P.Precio<= 20",
     u"Precio >= 10 y <= 20"},
    {"by nothing", kPrecio, Engine::Jet, u"=10..20", u"P.Precio>= 10 And P.Precio<= 20", u"Precio >= 10 y <= 20"},
    {"as shown", kPrecio, Engine::Jet, u"< 10; > 20; Es Nulo", kOutside, kShown},
    {"as shown behind an alternative", kPrecio, Engine::Jet, u"= 5; < 10; > 20; Es Nulo",
     join({u"P.Precio= 5 Or ", kOutside}), u"Precio = 5; < 10; > 20; Es Nulo"},
    {"as shown twice", kPrecio, Engine::Jet, u"< 10; > 20; Es Nulo; < 10; > 20; Es Nulo",
     join({kOutside, u" Or ", kOutside}), u"Precio < 10; > 20; Es Nulo; < 10; > 20; Es Nulo"},
    {"as shown with equal ends", kPrecio, Engine::Jet, u"< 10; > 10; Es Nulo",
     u"(P.Precio< 10 Or P.Precio> 10 Or P.Precio Is Null)", u"Precio < 10; > 10; Es Nulo"},
    {"as shown but the ends about", kPrecio, Engine::Jet, u"< 20; > 10; Es Nulo",
     u"(P.Precio< 20 Or P.Precio> 10 Or P.Precio Is Null)", u"Precio < 20; > 10; Es Nulo"},
    {"as shown but in another order", kPrecio, Engine::Jet, u"> 20; < 10; Es Nulo",
     u"P.Precio> 20 Or P.Precio< 10 Or (P.Precio Is Null)", u"Precio > 20; < 10; Es Nulo"},
    {"as shown but parted", kPrecio, Engine::Jet, u"< 10; > 20; = 15; Es Nulo",
     u"P.Precio< 10 Or P.Precio> 20 Or P.Precio= 15 Or (P.Precio Is Null)", u"Precio < 10; > 20; = 15; Es Nulo"},
    {"as shown but the first not alone", kPrecio, Engine::Jet, u"> 5 y < 10; > 20; Es Nulo",
     u"P.Precio> 5 And P.Precio< 10 Or P.Precio> 20 Or (P.Precio Is Null)", u"Precio > 5 y < 10; > 20; Es Nulo"},
    {"as shown but the last not alone", kPrecio, Engine::Jet, u"< 10; > 20; Es Nulo y > 5",
     u"P.Precio< 10 Or P.Precio> 20 Or (P.Precio Is Null) And P.Precio> 5", u"Precio < 10; > 20; Es Nulo y > 5"},
    {"as shown but with the ends", kPrecio, Engine::Jet, u"<= 10; >= 20; Es Nulo",
     u"P.Precio<= 10 Or P.Precio>= 20 Or (P.Precio Is Null)", u"Precio <= 10; >= 20; Es Nulo"},
    {"of a year", kAlta, Engine::Jet, u"<>2011", u"(C.Alta<#2011-01-01# Or C.Alta>=#2012-01-01# Or C.Alta Is Null)",
     u"Alta < 01/01/2011; > 31/12/2011; Es Nulo"},
    {"of a month, SQL Server", kAlta, Engine::SqlServer, u"!02/2011",
     u"(C.Alta<{ d '2011-02-01'} Or C.Alta>={ d '2011-03-01'} Or C.Alta Is Null)",
     u"Alta < 01/02/2011; > 28/02/2011; Es Nulo"},
    {"of years", kAlta, Engine::Oracle, u"<> 2010..2011",
     u"(C.Alta< TO_DATE('2010-01-01','YYYY-MM-DD')  Or C.Alta>= TO_DATE('2012-01-01','YYYY-MM-DD')  Or C.Alta Is Null)",
     u"Alta < 01/01/2010; > 31/12/2011; Es Nulo"},
    {"of a year behind an alternative", kAlta, Engine::Jet, u"2009 o no 2011",
     u"C.Alta>=#2009-01-01# And C.Alta<#2010-01-01# Or "
     u"(C.Alta<#2011-01-01# Or C.Alta>=#2012-01-01# Or C.Alta Is Null)",
     u"Alta >= 01/01/2009 y <= 31/12/2009; < 01/01/2011; > 31/12/2011; Es Nulo"},
    {"of years as shown", kAlta, Engine::Jet, u"< 01/01/2011; > 31/12/2011; Es Nulo",
     u"(C.Alta<#2011-01-01# Or C.Alta>=#2012-01-01# Or C.Alta Is Null)", u"Alta < 01/01/2011; > 31/12/2011; Es Nulo"},
    {"of years before another condition as shown", kAlta, Engine::Jet, u"<> 01/01/2011..31/12/2011 y > 31/12/2009",
     u"(C.Alta<#2011-01-01# Or C.Alta>=#2012-01-01# Or C.Alta Is Null) And C.Alta>=#2010-01-01#",
     u"Alta <> 01/01/2011..31/12/2011 y > 31/12/2009"},
    {"of each of five years", kAlta, Engine::Jet, u"no 2011 y no 2012 y no 2013 y no 2014 y no 2015",
     u"(C.Alta<#2011-01-01# Or C.Alta>=#2012-01-01# Or C.Alta Is Null) And "
     u"(C.Alta<#2012-01-01# Or C.Alta>=#2013-01-01# Or C.Alta Is Null) And "
     u"(C.Alta<#2013-01-01# Or C.Alta>=#2014-01-01# Or C.Alta Is Null) And "
     u"(C.Alta<#2014-01-01# Or C.Alta>=#2015-01-01# Or C.Alta Is Null) And "
     u"(C.Alta<#2015-01-01# Or C.Alta>=#2016-01-01# Or C.Alta Is Null)",
     u"Alta <> 01/01/2011..31/12/2011 y <> 01/01/2012..31/12/2012 y <> 01/01/2013..31/12/2013 y "
     u"<> 01/01/2014..31/12/2014 y <> 01/01/2015..31/12/2015"},
    {"of a day before another condition", kAlta, Engine::Jet, u"<>05/01/2011 y 2011",
     u"(C.Alta<#2011-01-05# Or C.Alta>=#2011-01-06# Or C.Alta Is Null) And C.Alta>=#2011-01-01# And C.Alta<#2012-01-01#",
     u"Alta <> 05/01/2011 y >= 01/01/2011 y <= 31/12/2011"},
    {"twice", kPrecio, Engine::Jet, u"no no entre 10 y 20", u""},
    {"without a last end", kPrecio, Engine::Jet, u"no entre 10", u""},
    {"of days", kAlta, Engine::Jet, u"no entre ayer y hoy",
     u"(C.Alta<#2011-01-04# Or C.Alta>=#2011-01-06# Or C.Alta Is Null)", u"Alta < 04/01/2011; > 05/01/2011; Es Nulo"},
    {"of days in French", kAlta, Engine::Jet, u"non entre hier et aujourd'hui",
     u"(C.Alta<#2011-01-04# Or C.Alta>=#2011-01-06# Or C.Alta Is Null)", u"Alta < 04/01/2011; > 05/01/2011; Es Nulo"},
    {"of texts is text", kNombre, Engine::Jet, u"no entre a",
     u"C.Nombre LIKE '%no%' And C.Nombre LIKE '%entre%' And C.Nombre LIKE '%a%'",
     u"Nombre es como '*no*' y es como '*entre*' y es como '*a*'"},
};

using NegatedRange = Rows<SpanishSearch, NamedSearch>;

TEST_P(NegatedRange, IsWhatLiesOutside) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, NegatedRange, ::testing::ValuesIn(kNegatedRangeRows), row_name);

// One bound, which alone is two alternatives and in a longer condition one test.
const NamedSearch kNegatedHalfRows[] = {
    {"above", kPrecio, Engine::Jet, u"!>5", u"P.Precio<= 5 Or (P.Precio Is Null)", u"Precio <= 5; Es Nulo"},
    {"below in words", kPrecio, Engine::Jet, u"no hasta 5", u"P.Precio> 5 Or (P.Precio Is Null)",
     u"Precio > 5; Es Nulo"},
    {"above in words", kPrecio, Engine::Jet, u"no desde 5", u"P.Precio< 5 Or (P.Precio Is Null)",
     u"Precio < 5; Es Nulo"},
    {"a range without a last end", kPrecio, Engine::Jet, u"!5..", u"P.Precio< 5 Or (P.Precio Is Null)",
     u"Precio < 5; Es Nulo"},
    {"behind an alternative", kPrecio, Engine::Jet, u"9 o !>5", u"P.Precio= 9 Or P.Precio<= 5 Or (P.Precio Is Null)",
     u"Precio = 9; <= 5; Es Nulo"},
    {"before another condition", kPrecio, Engine::Jet, u"!>5 y 3",
     u"(P.Precio<= 5 Or P.Precio Is Null) And P.Precio= 3", u"Precio ! > 5 y = 3"},
    {"before another condition as shown", kPrecio, Engine::Jet, u"! > 5 y = 3",
     u"(P.Precio<= 5 Or P.Precio Is Null) And P.Precio= 3", u"Precio ! > 5 y = 3"},
    {"below before another condition", kPrecio, Engine::SqlServer, u"no <5 y <>7",
     u"(P.Precio>= 5 Or P.Precio Is Null) And (P.Precio<> 7 Or P.Precio Is Null)", u"Precio ! < 5 y <> 7"},
    {"in words behind another condition", kPrecio, Engine::Oracle, u"<>7 y no desde 5",
     u"(P.Precio<> 7 Or P.Precio Is Null) And (P.Precio< 5 Or P.Precio Is Null)", u"Precio <> 7 y ! >= 5"},
    {"of days before another condition", kAlta, Engine::Jet, u"!>05/01/2011 y >2009",
     u"(C.Alta<#2011-01-06# Or C.Alta Is Null) And C.Alta>=#2010-01-01#", u"Alta ! > 05/01/2011 y > 31/12/2009"},
    {"of a year before another condition", kAlta, Engine::Jet, u"! <= 2010 y < 2012",
     u"(C.Alta>=#2011-01-01# Or C.Alta Is Null) And C.Alta<#2012-01-01#", u"Alta ! <= 31/12/2010 y < 01/01/2012"},
};

using NegatedHalf = Rows<SpanishSearch, NamedSearch>;

TEST_P(NegatedHalf, KeepsNull) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, NegatedHalf, ::testing::ValuesIn(kNegatedHalfRows), row_name);

// From or up to an end in words, the other end open on purpose.
struct OpenRow {
  const char* name;
  TextView before, between = {};  // between the ends, where it is followed by a last one
  bool is_last = false;
};
constexpr OpenRow kOpenRows[] = {
    {"es, from", u"desde ", u" hasta "},
    {"es, starting from", u"a partir de ", u" hasta "},
    {"es, starting from in capitals", u"A PARTIR DE ", u" HASTA "},
    {"en, from, until", u"from ", u" until "},
    {"en, from, up to", u"From  ", u" up to "},
    {"en, since, until", u"since ", u" until "},
    {"en, since, up to", u"since ", u"  Up  To  "},
    {"fr, since", u"depuis ", u" jusqu'\u00e0 "},
    {"fr, starting from", u"\u00e0 partir de ", u" jusqu'\u00e0 "},
    {"fr, starting from without accents", u"a partir de ", u" jusqu'a "},
    {"fr, starting from with combining accents", u"a\u0300 partir de ", u" jusqu\u2019a\u0300 "},
    {"es, until", u"hasta ", {}, true},
    {"en, until", u"Until ", {}, true},
    {"en, up to", u"up to ", {}, true},
    {"fr, until", u"jusqu'\u00e0 ", {}, true},
    {"fr, until without an accent", u"JUSQU'A ", {}, true},
    {"fr, until with a curly apostrophe", u"jusqu\u2019\u00e0 ", {}, true},
};

using OpenRange = Rows<SpanishSearch, OpenRow>;

TEST_P(OpenRange, HasOneEnd) {
  const auto& [name, before, between, is_last] = GetParam();
  const auto same = [](const query::SearchColumn& column, TextView typed, TextView figures) {
    const Text found = interpreted(column, Engine::Jet, typed);
    EXPECT_NE(found, u"no search") << to_utf8(typed);
    EXPECT_EQ(found, interpreted(column, Engine::Jet, figures)) << to_utf8(typed);
  };
  const auto open = [&, last = is_last](TextView end) { return last ? join({u"..", end}) : join({end, u".."}); };
  for (const TextView end : {u"5", u"-1.234,5", u"7 \u20ac"}) {
    const Text typed = join({before, end});
    same(kPrecio, typed, open(end));
    same(kTotal, join({u"no ", typed}), join({u"!", open(end)}));
    same(kPrecio, join({u"1 o ", typed, u" y 9"}), join({u"1;", open(end), u" & 9"}));
    if (!between.empty()) same(kPrecio, join({typed, between, u"10"}), join({end, u"..10"}));
    if (!between.empty()) same(kPrecio, join({u"no ", typed, between, u"10"}), join({u"!", end, u"..10"}));
  }
  for (const TextView end : {u"2010", u"01/2010", u"05/01/2010", u"2010-01-05", u"05/01/2010 14:07", u"hoy - 3"}) {
    const Text typed = join({before, end});
    same(kAlta, typed, open(end));
    same(kAlta, join({u"not ", typed}), join({u"! ", open(end)}));
    if (!between.empty()) same(kAlta, join({typed, between, u"2012"}), join({end, u"..2012"}));
  }
  for (const query::SearchColumn& column : {kPrecio, kAlta, kActivo}) {
    for (const TextView typed :
         {join({before}), join({before, before}), join({before, u"; 2011"}), join({before, u"x"}),
          join({u"2011", before}), join({before, u"2010", between.empty() ? u" y" : between})}) {
      EXPECT_EQ(interpreted(column, Engine::Jet, typed), u"no search") << to_utf8(typed);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, OpenRange, ::testing::ValuesIn(kOpenRows), row_name);

struct HalfRow {
  const char* name;
  std::initializer_list<TextView> typed;
};
constexpr HalfRow kHalfRows[] = {
    {"es", {u"entre 5 y",     u"entre 5",
            u"entre y 10",    u"entre",
            u"entre 5 y y",   u"no entre 5 y",
            u"de 5",          u"de 5 a",
            u"de a 10",       u"de",
            u"desde 5 hasta", u"desde hasta 10",
            u"desde",         u"hasta",
            u"a partir 5",    u"a partir de",
            u"a 10",          u"5 hasta 10",
            u"5 a 10",        u"5 y",
            u"y 5",           u"no",
            u"no desde",      u"5 o",
            u"desde 5 y",     u"a partir de hasta 10",
            u"no de 5",       u"entre 5 hasta 10"}},
    {"en",
     {u"between and 10", u"between 5 and", u"between 5", u"between", u"from 5 to", u"from to 10", u"from", u"to 10",
      u"up to", u"up 5", u"until", u"since", u"5 until 10", u"5 to 10", u"not from 5 to", u"not between 5 and", u"not",
      u"5 and", u"or 5"}},
    {"fr",
     {u"entre 5 et", u"entre et 10", u"de 5 \u00e0", u"de \u00e0 10", u"du 5 au", u"du 5", u"du au 10", u"du", u"au 10",
      u"\u00e0 10", u"depuis", u"\u00e0 partir 5", u"\u00e0 partir de", u"jusqu'\u00e0", u"jusqu' 5",
      u"depuis 5 jusqu'\u00e0", u"non du 5 au", u"non"}},
};

using HalfInWords = Rows<SpanishSearch, HalfRow>;

TEST_P(HalfInWords, IsNoRange) {
  for (const TextView typed : GetParam().typed) {
    EXPECT_EQ(interpreted(kPrecio, Engine::Jet, typed), u"no search") << to_utf8(typed);
    const Text dates = replace_all(replace_all(typed, u"10", u"2012"), u"5", u"2011");
    EXPECT_EQ(interpreted(kAlta, Engine::Jet, dates), u"no search") << to_utf8(dates);
  }
}

INSTANTIATE_TEST_SUITE_P(, HalfInWords, ::testing::ValuesIn(kHalfRows), row_name);

TEST_F(SearchRanges, InWordsAreTextOnColumnsOfText) {
  expect(kNombre, Engine::Jet,
         {{u"desde a", u"C.Nombre LIKE '%desde%' And C.Nombre LIKE '%a%'", u"Nombre es como '*desde*' y es como '*a*'"},
          {u"entre x y", u"C.Nombre LIKE '%entre%' And C.Nombre LIKE '%x%' And C.Nombre LIKE '%y%'",
           u"Nombre es como '*entre*' y es como '*x*' y es como '*y*'"}});
}

TEST_F(SearchRanges, FromAnEndAndUpToAnotherAreTwoConditions) {
  expect(kPrecio, Engine::Jet,
         {{u"desde 5 y hasta 10", u"P.Precio>= 5 And P.Precio<= 10", u"Precio >= 5 y <= 10"},
          {u"hasta 5 o desde 10", u"P.Precio<= 5 Or P.Precio>= 10", u"Precio <= 5; >= 10"}});
}

constexpr char16_t kContains[] = u"C.Nombre LIKE '%a..b%'", kShownContains[] = u"Nombre es como '*a..b*'";
const NamedSearch kQuotedPointsRows[] = {
    {"double quotes", kNombre, Engine::Jet, u"\"a..b\"", kContains, kShownContains},
    {"single quotes", kNombre, Engine::Jet, u"'a..b'", kContains, kShownContains},
    {"curly quotes", kNombre, Engine::Jet, u"\u2018a..b\u2019", kContains, kShownContains},
    {"negated", kNombre, Engine::Jet, u"!'a..b'", u"(C.Nombre NOT LIKE '%a..b%' Or C.Nombre Is Null)",
     u"Nombre <> es como '*a..b*'"},
    {"with a quote within", kNombre, Engine::Jet, u"'O'Neil..b'", u"C.Nombre LIKE '%O''Neil..b%'",
     u"Nombre es como '*O'Neil..b*'"},
    {"before an alternative", kNombre, Engine::Jet, u"'a..b'; 'c'", u"C.Nombre LIKE '%a..b%' Or C.Nombre LIKE '%c%'",
     u"Nombre es como '*a..b*'; es como '*c*'"},
    {"long text, SQL Server", kNotas, Engine::SqlServer, u"'a..b'", u"C.Notas LIKE N'%a..b%'",
     u"Notas es como '*a..b*'"},
    {"long text has no ranges, SQL Server", kNotas, Engine::SqlServer, u"'a'..'b'", u""},
    {"long text, Oracle", kNotas, Engine::Oracle, u"'a..b'", u" UPPER(C.Notas) LIKE UPPER('%a..b%')",
     u"Notas es como '*a..b*'"},
};

using QuotedPoints = Rows<SpanishSearch, NamedSearch>;

TEST_P(QuotedPoints, AreText) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, QuotedPoints, ::testing::ValuesIn(kQuotedPointsRows), row_name);

constexpr char16_t kRange[] = u"C.Nombre>='a' And (C.Nombre<='c' Or C.Nombre LIKE 'c%')";
constexpr char16_t kShownRange[] = u"Nombre >= a y <= c*";
const NamedSearch kQuotedEndsRows[] = {
    {"both", kNombre, Engine::Jet, u"'a'..'c'", kRange, kShownRange},
    {"the first one", kNombre, Engine::Jet, u"'a' .. c", kRange, kShownRange},
    {"the last one", kNombre, Engine::Jet, u"a..'c'", kRange, kShownRange},
    {"in different quotes", kNombre, Engine::Jet, u"\"a\"..'c'", kRange, kShownRange},
    {"points within the first one", kNombre, Engine::Jet, u"'a..b'..'c'",
     u"C.Nombre>='a..b' And (C.Nombre<='c' Or C.Nombre LIKE 'c%')", u"Nombre >= a..b y <= c*"},
    {"a quote that is text", kNombre, Engine::Jet, u"O'Neil..P",
     u"C.Nombre>='O''Neil' And (C.Nombre<='P' Or C.Nombre LIKE 'P%')", u"Nombre >= O'Neil y <= P*"},
    {"before an alternative", kNombre, Engine::Jet, u"'a' .. 'c' ; !'d'",
     join({kRange, u" Or (C.Nombre NOT LIKE '%d%' Or C.Nombre Is Null)"}), join({kShownRange, u"; <> es como '*d*'"})},
    {"before another condition", kNombre, Engine::Jet, u"'a'..c & 'd'", join({kRange, u" And C.Nombre LIKE '%d%'"}),
     join({kShownRange, u" y es como '*d*'"})},
    {"connectors within", kNombre, Engine::Jet, u"'x;y'..'y | z'",
     u"C.Nombre>='x;y' And (C.Nombre<='y | z' Or C.Nombre LIKE 'y | z%')", u"Nombre >= \"x;y\" y <= \"y | z\"*"},
    {"a semicolon within the last one", kNombre, Engine::Jet, u"a..'c;d'",
     u"C.Nombre>='a' And (C.Nombre<='c;d' Or C.Nombre LIKE 'c;d%')", u"Nombre >= a y <= \"c;d\"*"},
    {"a quote that does not end", kNombre, Engine::Jet, u"'t..u",
     u"C.Nombre>='''t' And (C.Nombre<='u' Or C.Nombre LIKE 'u%')", u"Nombre >= \"'t\" y <= u*"},
};

using QuotedEnds = Rows<SpanishSearch, NamedSearch>;

TEST_P(QuotedEnds, AreThoseOfARange) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, QuotedEnds, ::testing::ValuesIn(kQuotedEndsRows), row_name);

}  // namespace
}  // namespace qvr::tests
