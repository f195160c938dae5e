// Ranges: which end is the first one, what negates them, and what only looks like one.
#include "query/search_fixture.h"

namespace qvr::tests {
namespace {

class SearchRanges : public SpanishSearch {};

TEST_F(SearchRanges, EndWhereTheirLastPeriodEnds) {
  expect(kAlta, Engine::Jet,
         {{u"15/02/2011..2011", u"C.Alta>=#2011-02-15# And C.Alta<#2012-01-01#", u"Alta >= 15/02/2011 y <= 31/12/2011"},
          {u"hoy..2011", u"C.Alta>=#2011-01-05# And C.Alta<#2012-01-01#", u"Alta >= 05/01/2011 y <= 31/12/2011"},
          {u"02/2011..2011", u"C.Alta>=#2011-02-01# And C.Alta<#2012-01-01#", u"Alta >= 01/02/2011 y <= 31/12/2011"},
          {u"desde 15/02/2011 hasta 02/2011", u"C.Alta>=#2011-02-15# And C.Alta<#2011-03-01#",
           u"Alta >= 15/02/2011 y <= 28/02/2011"},
          {u"2011..15/02/2011", u"C.Alta>=#2011-01-01# And C.Alta<#2011-02-16#", u"Alta >= 01/01/2011 y <= 15/02/2011"},
          {u"!15/02/2011..2011", u"C.Alta<#2011-02-15# Or C.Alta>=#2012-01-01# Or (C.Alta Is Null)",
           u"Alta < 15/02/2011; > 31/12/2011; Es Nulo"}});
  expect(kAlta, Engine::SqlServer,
         {{u"05/01/2011 14:07..05/01/2011", u"C.Alta>={ ts '2011-01-05 14:07:00'} And C.Alta<{ d '2011-01-06'}",
           u"Alta >= 05/01/2011 14:07 y <= 05/01/2011"}});
}

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
TEST_F(SearchRanges, InWordsAreNegatedByWordsToo) {
  constexpr TextView kOutside = u"P.Precio< 10 Or P.Precio> 20 Or (P.Precio Is Null)";
  constexpr TextView kShown = u"Precio < 10; > 20; Es Nulo";
  expect(kPrecio, Engine::Jet,
         {{u"!entre 10 y 20", kOutside, kShown},
          {u"no entre 10 y 20", kOutside, kShown},
          {u"NOT  between 20 and 10", kOutside, kShown},
          {u"non entre 10 et 20", kOutside, kShown},
          {u"no de 10 a 20", kOutside, kShown},
          {u"not from 10 to 20", kOutside, kShown},
          {u"5 o no entre 10 y 20", join({u"P.Precio= 5 Or ", kOutside}), u"Precio = 5; < 10; > 20; Es Nulo"},
          {u"no entre 10 y 20 y <15",
           u"P.Precio< 10 And P.Precio< 15 Or P.Precio> 20 And P.Precio< 15 Or "
           u"(P.Precio Is Null) And P.Precio< 15",
           u"Precio < 10 y < 15; > 20 y < 15; Es Nulo y < 15"},
          {u"no no entre 10 y 20", u""},
          {u"no entre 10", u""}});
  expect(kAlta, Engine::Jet,
         {{u"no entre ayer y hoy", u"C.Alta<#2011-01-04# Or C.Alta>=#2011-01-06# Or (C.Alta Is Null)",
           u"Alta < 04/01/2011; > 05/01/2011; Es Nulo"},
          {u"non entre hier et aujourd'hui", u"C.Alta<#2011-01-04# Or C.Alta>=#2011-01-06# Or (C.Alta Is Null)",
           u"Alta < 04/01/2011; > 05/01/2011; Es Nulo"}});
  expect(kNombre, Engine::Jet,
         {{u"no entre a", u"C.Nombre LIKE '%no%' And C.Nombre LIKE '%entre%' And C.Nombre LIKE '%a%'",
           u"Nombre es como '*no*' y es como '*entre*' y es como '*a*'"}});
}

TEST_F(SearchRanges, HaveTheirPointsOutsideQuotes) {
  constexpr TextView kContains = u"C.Nombre LIKE '%a..b%'", kShown = u"Nombre es como '*a..b*'";
  expect(kNombre, Engine::Jet,
         {{u"\"a..b\"", kContains, kShown},
          {u"'a..b'", kContains, kShown},
          {u"\u2018a..b\u2019", kContains, kShown},
          {u"!'a..b'", u"(C.Nombre NOT LIKE '%a..b%' Or C.Nombre Is Null)", u"Nombre <> es como '*a..b*'"},
          {u"'O'Neil..b'", u"C.Nombre LIKE '%O''Neil..b%'", u"Nombre es como '*O'Neil..b*'"},
          {u"'a..b'; 'c'", u"C.Nombre LIKE '%a..b%' Or C.Nombre LIKE '%c%'",
           u"Nombre es como '*a..b*'; es como '*c*'"}});
  expect(kNotas, Engine::SqlServer,
         {{u"'a..b'", u"C.Notas LIKE N'%a..b%'", u"Notas es como '*a..b*'"}, {u"'a'..'b'", u""}});
  expect(kNotas, Engine::Oracle, {{u"'a..b'", u" UPPER(C.Notas) LIKE UPPER('%a..b%')", u"Notas es como '*a..b*'"}});
}

TEST_F(SearchRanges, MayHaveQuotedEnds) {
  constexpr TextView kRange = u"C.Nombre>='a' And (C.Nombre<='c' Or C.Nombre LIKE 'c%')";
  constexpr TextView kShown = u"Nombre >= a y <= c*";
  expect(kNombre, Engine::Jet,
         {{u"'a'..'c'", kRange, kShown},
          {u"'a' .. c", kRange, kShown},
          {u"a..'c'", kRange, kShown},
          {u"\"a\"..'c'", kRange, kShown},
          {u"'a..b'..'c'", u"C.Nombre>='a..b' And (C.Nombre<='c' Or C.Nombre LIKE 'c%')", u"Nombre >= a..b y <= c*"},
          {u"O'Neil..P", u"C.Nombre>='O''Neil' And (C.Nombre<='P' Or C.Nombre LIKE 'P%')", u"Nombre >= O'Neil y <= P*"},
          {u"'a' .. 'c' ; !'d'", join({kRange, u" Or (C.Nombre NOT LIKE '%d%' Or C.Nombre Is Null)"}),
           join({kShown, u"; <> es como '*d*'"})},
          {u"'a'..c & 'd'", join({kRange, u" And C.Nombre LIKE '%d%'"}), join({kShown, u" y es como '*d*'"})},
          {u"'x;y'..'y | z'", u"C.Nombre>='x;y' And (C.Nombre<='y | z' Or C.Nombre LIKE 'y | z%')",
           u"Nombre >= \"x;y\" y <= \"y | z\"*"},
          {u"a..'c;d'", u"C.Nombre>='a' And (C.Nombre<='c;d' Or C.Nombre LIKE 'c;d%')", u"Nombre >= a y <= \"c;d\"*"},
          {u"'t..u", u"C.Nombre>='''t' And (C.Nombre<='u' Or C.Nombre LIKE 'u%')", u"Nombre >= \"'t\" y <= u*"}});
}

}  // namespace
}  // namespace qvr::tests
