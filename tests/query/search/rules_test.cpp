// What the worked examples leave open: each row is a search and what comes of it for one engine.
#include "query/search/search_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using query::SearchColumn;
using tests::PrintTo;

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

const NamedSearch kWordInTextRows[] = {
    {"like in lower case", kNombre, Engine::Jet, u"like a prayer",
     u"C.Nombre LIKE '%like%' And C.Nombre LIKE '%a%' And C.Nombre LIKE '%prayer%'",
     u"Nombre es como '*like*' y es como '*a*' y es como '*prayer*'"},
    {"a word for null among others", kNombre, Engine::Jet, u"Nulo, S.A.",
     u"C.Nombre LIKE '%Nulo,%' And C.Nombre LIKE '%S.A.%'", u"Nombre es como '*Nulo,*' y es como '*S.A.*'"},
    {"a word for not", kNombre, Engine::Jet, u"not him", u"C.Nombre LIKE '%not%' And C.Nombre LIKE '%him%'",
     u"Nombre es como '*not*' y es como '*him*'"},
    {"the criterion's words without quotes", kNombre, Engine::Jet, u"es como Ana",
     u"C.Nombre LIKE '%es%' And C.Nombre LIKE '%como%' And C.Nombre LIKE '%Ana%'",
     u"Nombre es como '*es*' y es como '*como*' y es como '*Ana*'"},
    {"the criterion's words before quotes", kNombre, Engine::Jet, u"es como 'Ana'", u"C.Nombre LIKE 'Ana'",
     u"Nombre es como 'Ana'"},
    {"LIKE in capitals", kNombre, Engine::Jet, u"LIKE Ana", u"C.Nombre LIKE 'Ana'", u"Nombre es como 'Ana'"},
    {"like before a pattern", kNombre, Engine::Jet, u"like Ana*", u"C.Nombre LIKE 'Ana%'", u"Nombre es como 'Ana*'"},
    {"a dash within", kNombre, Engine::Jet, u"C-1025", u"C.Nombre LIKE '%C-1025%'", u"Nombre es como '*C-1025*'"},
    {"a dash alone", kNombre, Engine::Jet, u"-", u"C.Nombre LIKE '%-%'", u"Nombre es como '*-*'"},
};

using WordInText = Rows<SpanishSearch, NamedSearch>;

TEST_P(WordInText, IsText) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, WordInText, ::testing::ValuesIn(kWordInTextRows), row_name);

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

const NamedSearch kNegationRows[] = {
    {"of a pattern", kNombre, Engine::Jet, u"<>Ana*", u"(C.Nombre NOT LIKE 'Ana%' Or C.Nombre Is Null)",
     u"Nombre <> es como 'Ana*'"},
    {"of a text", kNombre, Engine::Jet, u"!=Ana", u"(C.Nombre<>'Ana' Or C.Nombre Is Null)", u"Nombre <> Ana"},
    {"any text", kNombre, Engine::Jet, u"*", u"Not (C.Nombre='' Or C.Nombre Is Null)", u"Nombre <> ''"},
    {"not equal to nothing", kNombre, Engine::Jet, u"<>", u"Not (C.Nombre='' Or C.Nombre Is Null)", u"Nombre <> ''"},
    {"of null", kNombre, Engine::Jet, u"!Es Nulo", u"Not (C.Nombre Is Null)", u"Nombre <> Es Nulo"},
    {"of a number by a sign", kPrecio, Engine::Jet, u"!5", u"(P.Precio<> 5 Or P.Precio Is Null)", u"Precio <> 5"},
    {"of a number by a word", kPrecio, Engine::Jet, u"no 5", u"(P.Precio<> 5 Or P.Precio Is Null)", u"Precio <> 5"},
    {"of a comparison", kPrecio, Engine::Jet, u"!>5", u"P.Precio<= 5 Or (P.Precio Is Null)", u"Precio <= 5; Es Nulo"},
    {"any number", kPrecio, Engine::Jet, u"*", u"Not (P.Precio Is Null)", u"Precio <> Es Nulo"},
    {"number not equal to nothing", kPrecio, Engine::Jet, u"<>", u"Not (P.Precio Is Null)", u"Precio <> Es Nulo"},
    {"number equal to nothing", kPrecio, Engine::Jet, u"=", u"(P.Precio Is Null)", u"Precio Es Nulo"},
    {"number of empty quotes", kPrecio, Engine::Jet, u"''", u"(P.Precio Is Null)", u"Precio Es Nulo"},
};

using Negation = Rows<SpanishSearch, NamedSearch>;

TEST_P(Negation, KeepsNull) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, Negation, ::testing::ValuesIn(kNegationRows), row_name);

constexpr char16_t kFebruary[] = u"C.Alta>=#2011-02-01# And C.Alta<#2011-03-01#";
const NamedSearch kDoubleNegationRows[] = {
    {"of a year", kAlta, Engine::Jet, u"!<>2011", u"C.Alta>=#2011-01-01# And C.Alta<#2012-01-01#",
     u"Alta >= 01/01/2011 y <= 31/12/2011"},
    {"of a month by a word", kAlta, Engine::Jet, u"no <>02/2011", kFebruary, u"Alta >= 01/02/2011 y <= 28/02/2011"},
    {"of a month by two signs", kAlta, Engine::Jet, u"!!=02/2011", kFebruary, u"Alta >= 01/02/2011 y <= 28/02/2011"},
    {"of a day", kAlta, Engine::Jet, u"!<>05/01/2011", u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-06#",
     u"Alta = 05/01/2011"},
    {"of a number", kPrecio, Engine::Jet, u"!<>5", u"P.Precio= 5", u"Precio = 5"},
    {"of a pattern", kNombre, Engine::Jet, u"!<>Ana*", u"C.Nombre LIKE 'Ana%'", u"Nombre es como 'Ana*'"},
    {"of nothing", kNombre, Engine::Jet, u"!<>", u"(C.Nombre='' Or C.Nombre Is Null)", u"Nombre = ''"},
};

using DoubleNegation = Rows<SpanishSearch, NamedSearch>;

TEST_P(DoubleNegation, IsNone) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, DoubleNegation, ::testing::ValuesIn(kDoubleNegationRows), row_name);

const NamedSearch kTypedNumberRows[] = {
    {"a point that cannot part thousands", kPrecio, Engine::SqlServer, u"1.5", u"P.Precio= 1.5", u"Precio = 1,5"},
    {"a point between thousands", kPrecio, Engine::SqlServer, u"1.500", u"P.Precio= 1500", u"Precio = 1500"},
    {"a comma", kPrecio, Engine::SqlServer, u"1,500", u"P.Precio= 1.5", u"Precio = 1,5"},
    {"points and a comma", kPrecio, Engine::SqlServer, u"1.234.567,89", u"P.Precio= 1234567.89",
     u"Precio = 1234567,89"},
    {"many digits", kPrecio, Engine::SqlServer, u"123456789", u"P.Precio= 123456789", u"Precio = 123456789"},
    {"a tenth", kPrecio, Engine::SqlServer, u"0,1", u"P.Precio= 0.1", u"Precio = 0,1"},
    {"a currency sign", kPrecio, Engine::SqlServer, u"\u20ac 10", u"P.Precio= 10", u"Precio = 10"},
    {"a minus and a blank", kPrecio, Engine::SqlServer, u"- 7", u"P.Precio=-7", u"Precio = -7"},
    {"a plus", kPrecio, Engine::SqlServer, u"+7", u"P.Precio= 7", u"Precio = 7"},
    {"two points", kPrecio, Engine::SqlServer, u"1.2.3", u""},
    {"two commas", kPrecio, Engine::SqlServer, u"1,2,3", u""},
    {"an exponent", kPrecio, Engine::SqlServer, u"1e5", u""},
    {"hexadecimal digits", kPrecio, Engine::SqlServer, u"0x10", u""},
    {"a letter behind", kPrecio, Engine::SqlServer, u"10 20 x", u""},
    {"greater than nothing", kPrecio, Engine::SqlServer, u">", u""},
    {"at least nothing", kPrecio, Engine::SqlServer, u">=", u""},
    {"a range without an end", kPrecio, Engine::SqlServer, u"10..", u"P.Precio>= 10", u"Precio >= 10"},
    {"a range without ends", kPrecio, Engine::SqlServer, u"..", u""},
    {"a range to a letter", kPrecio, Engine::SqlServer, u"10..x", u""},
};

using TypedNumber = Rows<SpanishSearch, NamedSearch>;

TEST_P(TypedNumber, IsThatOfTheLocaleOrNone) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, TypedNumber, ::testing::ValuesIn(kTypedNumberRows), row_name);

TEST_F(SearchRules, RangesMayBeToldInWords) {
  expect(kPrecio, Engine::Jet,
         {{u"between 10 and 20", u"P.Precio>= 10 And P.Precio<= 20", u"Precio >= 10 y <= 20"},
          {u"desde 20 hasta 10", u"P.Precio>= 10 And P.Precio<= 20", u"Precio >= 10 y <= 20"},
          {u"from 1 to 2 or 5", u"P.Precio>= 1 And P.Precio<= 2 Or P.Precio= 5", u"Precio >= 1 y <= 2; = 5"},
          {u"du 1 au 2", u"P.Precio>= 1 And P.Precio<= 2", u"Precio >= 1 y <= 2"}});
}

const NamedSearch kTypedDateRows[] = {
    {"a day as in ISO 8601", kAlta, Engine::Jet, u"2011-01-05", u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-06#",
     u"Alta = 05/01/2011"},
    {"after a year", kAlta, Engine::Jet, u">2011", u"C.Alta>=#2012-01-01#", u"Alta > 31/12/2011"},
    {"before a month as in ISO 8601", kAlta, Engine::Jet, u"<2011-02", u"C.Alta<#2011-02-01#", u"Alta < 01/02/2011"},
    {"yesterday", kAlta, Engine::Jet, u"ayer", u"C.Alta>=#2011-01-04# And C.Alta<#2011-01-05#", u"Alta = 04/01/2011"},
    {"a day from tomorrow", kAlta, Engine::Jet, u"tomorrow + 1", u"C.Alta>=#2011-01-07# And C.Alta<#2011-01-08#",
     u"Alta = 07/01/2011"},
    {"a range the other way about", kAlta, Engine::Jet, u"06/01/2011..05/01/2011",
     u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-07#", u"Alta >= 05/01/2011 y <= 06/01/2011"},
    {"until today", kAlta, Engine::Jet, u"..hoy", u"C.Alta<#2011-01-06#", u"Alta <= 05/01/2011"},
    {"no such day", kAlta, Engine::Jet, u"31/02/2011", u""},
    {"a time alone", kAlta, Engine::Jet, u"14:07", u""},
    {"a word that begins like today", kAlta, Engine::Jet, u"hoyo", u""},
    {"a number", kAlta, Engine::Jet, u"5", u""},
    {"a number of five digits", kAlta, Engine::Jet, u"99999", u""},
    {"no such month", kAlta, Engine::Jet, u"13/2011", u""},
    {"from a second on", kAlta, Engine::Jet, u"05/01/2011 14:07:09..", u"C.Alta>=#2011-01-05 14:07:09#",
     u"Alta >= 05/01/2011 14:07:09"},
    {"a minute before midnight", kAlta, Engine::Jet, u"05/01/2011 23:59",
     u"C.Alta>=#2011-01-05 23:59:00# And C.Alta<#2011-01-06 00:00:00#", u"Alta = 05/01/2011 23:59"},
};

using TypedDate = Rows<SpanishSearch, NamedSearch>;

TEST_P(TypedDate, IsAWholePeriod) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, TypedDate, ::testing::ValuesIn(kTypedDateRows), row_name);

const NamedSearch kTypedTruthRows[] = {
    {"yes in Spanish", kActivo, Engine::Jet, u"s\u00ed", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"yes in Spanish without an accent", kActivo, Engine::Jet, u"SI", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"yes in English", kActivo, Engine::Jet, u"yes", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"yes in French", kActivo, Engine::Jet, u"oui", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"true in Spanish", kActivo, Engine::Jet, u"verdadero", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"true in English", kActivo, Engine::Jet, u"true", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"true in French", kActivo, Engine::Jet, u"vrai", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"one", kActivo, Engine::Jet, u"1", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"minus one", kActivo, Engine::Jet, u"-1", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"a cross", kActivo, Engine::Jet, u"x", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"no", kActivo, Engine::Oracle, u"no", u" C.Activo=0 ", u"Activo = no"},
    {"no in one letter", kActivo, Engine::Oracle, u"N", u" C.Activo=0 ", u"Activo = no"},
    {"no in French", kActivo, Engine::Oracle, u"non", u" C.Activo=0 ", u"Activo = no"},
    {"false in Spanish", kActivo, Engine::Oracle, u"falso", u" C.Activo=0 ", u"Activo = no"},
    {"false in English", kActivo, Engine::Oracle, u"false", u" C.Activo=0 ", u"Activo = no"},
    {"false in French", kActivo, Engine::Oracle, u"faux", u" C.Activo=0 ", u"Activo = no"},
    {"zero", kActivo, Engine::Oracle, u"0", u" C.Activo=0 ", u"Activo = no"},
    {"perhaps", kActivo, Engine::Jet, u"quiz\u00e1s", u""},
    {"greater", kActivo, Engine::Jet, u">1", u""},
    {"a range", kActivo, Engine::Jet, u"s\u00ed..no", u""},
    {"yes or null", kActivo, Engine::Jet, u"s\u00ed o nulo", u" C.Activo<>0  Or (C.Activo Is Null)",
     u"Activo = s\u00ed; Es Nulo"},
};

using TypedTruth = Rows<SpanishSearch, NamedSearch>;

TEST_P(TypedTruth, IsReadInThreeLanguages) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, TypedTruth, ::testing::ValuesIn(kTypedTruthRows), row_name);

const NamedSearch kSearchedLongTextRows[] = {
    {"other than, SQL Server", kNotas, Engine::SqlServer, u"<>a", u"(C.Notas NOT LIKE N'a' Or C.Notas Is Null)",
     u"Notas <> a"},
    {"range, SQL Server", kNotas, Engine::SqlServer, u"a..b", u""},
    {"less, SQL Server", kNotas, Engine::SqlServer, u"<a", u""},
    {"percent, SQL Server", kNotas, Engine::SqlServer, u"=50%", u"C.Notas LIKE N'50!%' ESCAPE '!'", u"Notas = 50%"},
    {"empty, SQL Server", kNotas, Engine::SqlServer, u"=", u"(C.Notas LIKE N'' Or C.Notas Is Null)", u"Notas = ''"},
    {"equal, Oracle", kNotas, Engine::Oracle, u"=a", u" UPPER(C.Notas) LIKE UPPER('a')", u"Notas = a"},
    {"greater, Oracle", kNotas, Engine::Oracle, u">a", u""},
    {"greater, Jet", kNotas, Engine::Jet, u">a", u"C.Notas>'a'", u"Notas > a"},
};

using SearchedLongText = Rows<SpanishSearch, NamedSearch>;

TEST_P(SearchedLongText, KnowsOnlyLikeOnTwoEngines) { expect(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, SearchedLongText, ::testing::ValuesIn(kSearchedLongTextRows), row_name);

TEST_F(SearchRules, PatternsSayWhatTheyMeanToEachEngine) {
  constexpr TextView kAllCandidates = u"#!&/()$=|%";
  expect(kNombre, Engine::SqlServer,
         {{kAllCandidates, u" UPPER(C.Nombre) LIKE UPPER(N'%#!&/()$=|[%]%')", u"Nombre es como '*#!&/()$=|%*'"},
          {u"a[b%", u" UPPER(C.Nombre) LIKE UPPER(N'%a[[]b!%%') ESCAPE '!'", u"Nombre es como '*a[b%*'"}});
  expect(kNombre, Engine::Jet, {{u"\"a?\"#[_", u"C.Nombre LIKE '%a[?][#][[][_]%'", u"Nombre es como '*\"a?#[_\"*'"}});
}

TEST_F(SearchRules, OnlyKnownTypesAndEnginesAreSearched) {
  EXPECT_FALSE(query::interpret_search(Engine::Jet, {u"C.X", u'Z'}, u"a", u"X"));
  EXPECT_FALSE(query::interpret_search(Engine::None, kNombre, u"a", u"X"));
  EXPECT_TRUE(query::interpret_search(Engine::Jet, {u"C.X", u't'}, u"a", u"X"));
}

}  // namespace
}  // namespace qvr::tests
