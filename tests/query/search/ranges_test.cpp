// Ranges: which end is the first one, what negates them, and what only looks like one.
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
