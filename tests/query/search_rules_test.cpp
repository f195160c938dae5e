// What the worked examples leave open: each row is a search and what comes of it for one engine.
#include "query/search_fixture.h"

namespace qvr::tests {
namespace {

using query::SearchColumn;

class SearchRules : public SpanishSearch {};

TEST_F(SearchRules, NothingIsNoSearch) {
  for (const SearchColumn& column : {kNombre, kNotas, kPrecio, kAlta, kActivo}) {
    expect(column, Engine::Jet,
           {{u"", u""}, {u"   ", u""}, {u"\t\r\n", u""}, {u"\u00a0", u""}, {u";", u""}, {u";;", u""}});
  }
}

TEST_F(SearchRules, BlanksOfAllKindsAreBlanks) {
  expect(kNombre, Engine::Jet,
         {{u"\u00a0ana\tbea\r\n", u"C.Nombre LIKE '%ana%' And C.Nombre LIKE '%bea%'",
           u"Nombre es como '*ana*' y es como '*bea*'"}});
}

TEST_F(SearchRules, CurlyQuotesQuoteAsWell) {
  expect(kNombre, Engine::Jet,
         {{u"\u201cana bea\u201d", u"C.Nombre LIKE '%ana bea%'", u"Nombre es como '*ana bea*'"},
          {u"=\u2018ana\u2019", u"C.Nombre='ana'", u"Nombre = ana"},
          {u"O\u2019Neil", u"C.Nombre LIKE '%O\u2019Neil%'", u"Nombre es como '*O\u2019Neil*'"}});
}

TEST_F(SearchRules, WordsInTextsAreText) {
  expect(kNombre, Engine::Jet,
         {{u"like a prayer", u"C.Nombre LIKE '%like%' And C.Nombre LIKE '%a%' And C.Nombre LIKE '%prayer%'",
           u"Nombre es como '*like*' y es como '*a*' y es como '*prayer*'"},
          {u"Nulo, S.A.", u"C.Nombre LIKE '%Nulo,%' And C.Nombre LIKE '%S.A.%'",
           u"Nombre es como '*Nulo,*' y es como '*S.A.*'"},
          {u"not him", u"C.Nombre LIKE '%not%' And C.Nombre LIKE '%him%'", u"Nombre es como '*not*' y es como '*him*'"},
          {u"es como Ana", u"C.Nombre LIKE '%es%' And C.Nombre LIKE '%como%' And C.Nombre LIKE '%Ana%'",
           u"Nombre es como '*es*' y es como '*como*' y es como '*Ana*'"},
          {u"es como 'Ana'", u"C.Nombre LIKE 'Ana'", u"Nombre es como 'Ana'"},
          {u"LIKE Ana", u"C.Nombre LIKE 'Ana'", u"Nombre es como 'Ana'"},
          {u"like Ana*", u"C.Nombre LIKE 'Ana%'", u"Nombre es como 'Ana*'"},
          {u"C-1025", u"C.Nombre LIKE '%C-1025%'", u"Nombre es como '*C-1025*'"},
          {u"-", u"C.Nombre LIKE '%-%'", u"Nombre es como '*-*'"}});
}

TEST_F(SearchRules, ConnectorsInTextsNeedAnOperatorOrBlanks) {
  expect(kNombre, Engine::Jet,
         {{u">a y <b", u"C.Nombre>'a' And C.Nombre<'b'", u"Nombre > a y < b"},
          {u"a|b", u"C.Nombre LIKE '%a|b%'", u"Nombre es como '*a|b*'"},
          {u"a | b", u"C.Nombre LIKE '%a%' Or C.Nombre LIKE '%b%'", u"Nombre es como '*a*'; es como '*b*'"},
          {u"a;b", u"C.Nombre LIKE '%a%' Or C.Nombre LIKE '%b%'", u"Nombre es como '*a*'; es como '*b*'"},
          {u"\"a;b\"", u"C.Nombre LIKE '%a;b%'", u"Nombre es como '*\"a;b\"*'"}});
}

// As the last end of a range is written, in parentheses all the same.
TEST_F(SearchRules, AlternativesAreBareUnlessTheyReadAsABound) {
  constexpr TextView kBound = u"(C.Nombre<='C' Or C.Nombre LIKE 'C%')";
  expect(kNombre, Engine::Jet,
         {{u"<=C; C*", kBound, u"Nombre <= C; es como 'C*'"},
          {u"<=C*", kBound, u"Nombre <= C*"},
          {u"C*; <=C", u"C.Nombre LIKE 'C%' Or C.Nombre<='C'", u"Nombre es como 'C*'; <= C"},
          {u"<=C; D*", u"C.Nombre<='C' Or C.Nombre LIKE 'D%'", u"Nombre <= C; es como 'D*'"},
          {u"<C; C*", u"C.Nombre<'C' Or C.Nombre LIKE 'C%'", u"Nombre < C; es como 'C*'"}});
}

TEST_F(SearchRules, NegationsKeepNull) {
  expect(kNombre, Engine::Jet,
         {{u"<>Ana*", u"(C.Nombre NOT LIKE 'Ana%' Or C.Nombre Is Null)", u"Nombre <> es como 'Ana*'"},
          {u"!=Ana", u"(C.Nombre<>'Ana' Or C.Nombre Is Null)", u"Nombre <> Ana"},
          {u"*", u"Not (C.Nombre='' Or C.Nombre Is Null)", u"Nombre <> ''"},
          {u"<>", u"Not (C.Nombre='' Or C.Nombre Is Null)", u"Nombre <> ''"},
          {u"!Es Nulo", u"Not (C.Nombre Is Null)", u"Nombre <> Es Nulo"}});
  expect(kPrecio, Engine::Jet,
         {{u"!5", u"(P.Precio<> 5 Or P.Precio Is Null)", u"Precio <> 5"},
          {u"no 5", u"(P.Precio<> 5 Or P.Precio Is Null)", u"Precio <> 5"},
          {u"!>5", u"P.Precio<= 5 Or (P.Precio Is Null)", u"Precio <= 5; Es Nulo"},
          {u"*", u"Not (P.Precio Is Null)", u"Precio <> Es Nulo"},
          {u"<>", u"Not (P.Precio Is Null)", u"Precio <> Es Nulo"},
          {u"=", u"(P.Precio Is Null)", u"Precio Es Nulo"},
          {u"''", u"(P.Precio Is Null)", u"Precio Es Nulo"}});
}

TEST_F(SearchRules, TwoNegationsAreNone) {
  constexpr TextView kFebruary = u"C.Alta>=#2011-02-01# And C.Alta<#2011-03-01#";
  expect(kAlta, Engine::Jet,
         {{u"!<>2011", u"C.Alta>=#2011-01-01# And C.Alta<#2012-01-01#", u"Alta >= 01/01/2011 y <= 31/12/2011"},
          {u"no <>02/2011", kFebruary, u"Alta >= 01/02/2011 y <= 28/02/2011"},
          {u"!!=02/2011", kFebruary, u"Alta >= 01/02/2011 y <= 28/02/2011"},
          {u"!<>05/01/2011", u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-06#", u"Alta = 05/01/2011"}});
  expect(kPrecio, Engine::Jet, {{u"!<>5", u"P.Precio= 5", u"Precio = 5"}});
  expect(kNombre, Engine::Jet,
         {{u"!<>Ana*", u"C.Nombre LIKE 'Ana%'", u"Nombre es como 'Ana*'"},
          {u"!<>", u"(C.Nombre='' Or C.Nombre Is Null)", u"Nombre = ''"}});
}

TEST_F(SearchRules, NumbersAreThoseOfTheLocaleOrNone) {
  expect(kPrecio, Engine::SqlServer,
         {{u"1.5", u"P.Precio= 1.5", u"Precio = 1,5"},
          {u"1.500", u"P.Precio= 1500", u"Precio = 1500"},
          {u"1,500", u"P.Precio= 1.5", u"Precio = 1,5"},
          {u"1.234.567,89", u"P.Precio= 1234567.89", u"Precio = 1234567,89"},
          {u"123456789", u"P.Precio= 123456789", u"Precio = 123456789"},
          {u"0,1", u"P.Precio= 0.1", u"Precio = 0,1"},
          {u"\u20ac 10", u"P.Precio= 10", u"Precio = 10"},
          {u"- 7", u"P.Precio=-7", u"Precio = -7"},
          {u"+7", u"P.Precio= 7", u"Precio = 7"},
          {u"1.2.3", u""},
          {u"1,2,3", u""},
          {u"1e5", u""},
          {u"0x10", u""},
          {u"10 20 x", u""},
          {u">", u""},
          {u">=", u""},
          {u"10..", u"P.Precio>= 10", u"Precio >= 10"},
          {u"..", u""},
          {u"10..x", u""}});
}

TEST_F(SearchRules, RangesInWords) {
  expect(kPrecio, Engine::Jet,
         {{u"between 10 and 20", u"P.Precio>= 10 And P.Precio<= 20", u"Precio >= 10 y <= 20"},
          {u"desde 20 hasta 10", u"P.Precio>= 10 And P.Precio<= 20", u"Precio >= 10 y <= 20"},
          {u"from 1 to 2 or 5", u"P.Precio>= 1 And P.Precio<= 2 Or P.Precio= 5", u"Precio >= 1 y <= 2; = 5"},
          {u"du 1 au 2", u"P.Precio>= 1 And P.Precio<= 2", u"Precio >= 1 y <= 2"}});
}

TEST_F(SearchRules, DatesAreWholePeriods) {
  expect(kAlta, Engine::Jet,
         {{u"2011-01-05", u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-06#", u"Alta = 05/01/2011"},
          {u">2011", u"C.Alta>=#2012-01-01#", u"Alta > 31/12/2011"},
          {u"<2011-02", u"C.Alta<#2011-02-01#", u"Alta < 01/02/2011"},
          {u"ayer", u"C.Alta>=#2011-01-04# And C.Alta<#2011-01-05#", u"Alta = 04/01/2011"},
          {u"tomorrow + 1", u"C.Alta>=#2011-01-07# And C.Alta<#2011-01-08#", u"Alta = 07/01/2011"},
          {u"06/01/2011..05/01/2011", u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-07#",
           u"Alta >= 05/01/2011 y <= 06/01/2011"},
          {u"..hoy", u"C.Alta<#2011-01-06#", u"Alta <= 05/01/2011"},
          {u"31/02/2011", u""},
          {u"14:07", u""},
          {u"hoyo", u""},
          {u"5", u""},
          {u"99999", u""},
          {u"13/2011", u""},
          {u"31/12/9999", u""}});
  expect(kAlta, Engine::SqlServer,
         {{u"05/01/2011 14:07:09..", u"C.Alta>={ ts '2011-01-05 14:07:09'}", u"Alta >= 05/01/2011 14:07:09"},
          {u"05/01/2011 23:59", u"C.Alta>={ ts '2011-01-05 23:59:00'} And C.Alta<{ ts '2011-01-06 00:00:00'}",
           u"Alta = 05/01/2011 23:59"}});
}

TEST_F(SearchRules, TruthInThreeLanguages) {
  for (const TextView word : {u"s\u00ed", u"SI", u"yes", u"oui", u"verdadero", u"true", u"vrai", u"1", u"-1", u"x"}) {
    EXPECT_EQ(interpreted(kActivo, Engine::Jet, word), u" C.Activo<>0  | Activo = s\u00ed");
  }
  for (const TextView word : {u"no", u"N", u"non", u"falso", u"false", u"faux", u"0"}) {
    EXPECT_EQ(interpreted(kActivo, Engine::Oracle, word), u" C.Activo=0  | Activo = no");
  }
  expect(kActivo, Engine::Jet,
         {{u"quiz\u00e1s", u""},
          {u">1", u""},
          {u"s\u00ed..no", u""},
          {u"s\u00ed o nulo", u" C.Activo<>0  Or (C.Activo Is Null)", u"Activo = s\u00ed; Es Nulo"}});
}

TEST_F(SearchRules, LongTextsKnowOnlyLikeOnTwoEngines) {
  expect(kNotas, Engine::SqlServer,
         {{u"<>a", u"(C.Notas NOT LIKE N'a' Or C.Notas Is Null)", u"Notas <> a"},
          {u"a..b", u""},
          {u"<a", u""},
          {u"=50%", u"C.Notas LIKE N'50!%' ESCAPE '!'", u"Notas = 50%"},
          {u"=", u"(C.Notas LIKE N'' Or C.Notas Is Null)", u"Notas = ''"}});
  expect(kNotas, Engine::Oracle, {{u"=a", u" UPPER(C.Notas) LIKE UPPER('a')", u"Notas = a"}, {u">a", u""}});
  expect(kNotas, Engine::Jet, {{u">a", u"C.Notas>'a'", u"Notas > a"}});
}

TEST_F(SearchRules, PatternsSayWhatTheyMeanToEachEngine) {
  constexpr TextView kAllCandidates = u"#!&/()$=|%";
  expect(kNombre, Engine::SqlServer,
         {{kAllCandidates, u" UPPER(C.Nombre) LIKE UPPER(N'%#!&/()$=|[%]%')", u"Nombre es como '*#!&/()$=|%*'"},
          {u"a[b%", u" UPPER(C.Nombre) LIKE UPPER(N'%a[[]b!%%') ESCAPE '!'", u"Nombre es como '*a[b%*'"}});
  expect(kNombre, Engine::Jet, {{u"\"a?\"#[_", u"C.Nombre LIKE '%a[?][#][[][_]%'", u"Nombre es como '*\"a?#[_\"*'"}});
}

TEST_F(SearchRules, OtherTypesAndEnginesAreNotSearched) {
  EXPECT_FALSE(query::interpret_search(Engine::Jet, {u"C.X", u'Z'}, u"a", u"X"));
  EXPECT_FALSE(query::interpret_search(Engine::None, kNombre, u"a", u"X"));
  EXPECT_TRUE(query::interpret_search(Engine::Jet, {u"C.X", u't'}, u"a", u"X"));
}

}  // namespace
}  // namespace qvr::tests
