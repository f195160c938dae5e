// Searches with their conditions and criteria, by column type, engine and language.
#include "query/search/search_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct ExampleRow {
  const char* name;
  query::SearchColumn column;
  Engine engine;
  UserLanguage language;
  TextView search, condition, criterion;  // no condition: no search
};

// "01/05/2011" is the fifth of January to an English-speaking user here.
const ExampleRow kExamples[] = {
    {"a word", kNombre, Engine::Jet, kSpanish, u"p\u00e9rez", u"C.Nombre LIKE '%p\u00e9rez%'",
     u"Nombre es como '*p\u00e9rez*'"},
    {"a word, SQL Server", kNombre, Engine::SqlServer, kSpanish, u"p\u00e9rez",
     u" UPPER(C.Nombre) LIKE UPPER(N'%p\u00e9rez%')", u"Nombre es como '*p\u00e9rez*'"},
    {"two words, Oracle", kNombre, Engine::Oracle, kSpanish, u"ana l\u00f3pez",
     u" UPPER(C.Nombre) LIKE UPPER('%ana%') And  UPPER(C.Nombre) LIKE UPPER('%l\u00f3pez%')",
     u"Nombre es como '*ana*' y es como '*l\u00f3pez*'"},
    {"two words in quotes", kNombre, Engine::Jet, kSpanish, u"\"ana l\u00f3pez\"", u"C.Nombre LIKE '%ana l\u00f3pez%'",
     u"Nombre es como '*ana l\u00f3pez*'"},
    {"beginning", kNombre, Engine::Jet, kSpanish, u"Ana*", u"C.Nombre LIKE 'Ana%'", u"Nombre es como 'Ana*'"},
    {"end, SQL Server", kNombre, Engine::SqlServer, kSpanish, u"*S.L.", u" UPPER(C.Nombre) LIKE UPPER(N'%S.L.')",
     u"Nombre es como '*S.L.'"},
    {"one character left open, Oracle", kNombre, Engine::Oracle, kSpanish, u"Hans?n",
     u" UPPER(C.Nombre) LIKE UPPER('Hans_n')", u"Nombre es como 'Hans?n'"},
    {"exactly, SQL Server", kNombre, Engine::SqlServer, kSpanish, u"=Ana", u" UPPER(C.Nombre)=UPPER(N'Ana')",
     u"Nombre = Ana"},
    {"exactly with a quote, Oracle", kNombre, Engine::Oracle, kSpanish, u"=O'Neil",
     u" UPPER(C.Nombre)=UPPER('O''Neil')", u"Nombre = O'Neil"},
    {"a quote within a word", kNombre, Engine::Jet, kSpanish, u"O'Neil", u"C.Nombre LIKE '%O''Neil%'",
     u"Nombre es como '*O'Neil*'"},
    {"other than, SQL Server", kNombre, Engine::SqlServer, kSpanish, u"<>Ana",
     u"( UPPER(C.Nombre)<>UPPER(N'Ana') Or C.Nombre Is Null)", u"Nombre <> Ana"},
    {"without a word", kNombre, Engine::Jet, kSpanish, u"!test", u"(C.Nombre NOT LIKE '%test%' Or C.Nombre Is Null)",
     u"Nombre <> es como '*test*'"},
    {"operator LIKE in English, Oracle", kNombre, Engine::Oracle, kEnglish, u"LIKE Ana*",
     u" UPPER(C.Nombre) LIKE UPPER('Ana%')", u"Nombre is like 'Ana*'"},
    {"percent, SQL Server", kNombre, Engine::SqlServer, kSpanish, u"50%",
     u" UPPER(C.Nombre) LIKE UPPER(N'%50!%%') ESCAPE '!'", u"Nombre es como '*50%*'"},
    {"percent, Jet", kNombre, Engine::Jet, kSpanish, u"50%", u"C.Nombre LIKE '%50[%]%'", u"Nombre es como '*50%*'"},
    {"percent and underscore, Oracle", kNombre, Engine::Oracle, kSpanish, u"50%_a",
     u" UPPER(C.Nombre) LIKE UPPER('%50!%!_a%') ESCAPE '!'", u"Nombre es como '*50%_a*'"},
    {"brackets, SQL Server", kNombre, Engine::SqlServer, kSpanish, u"[2026]",
     u" UPPER(C.Nombre) LIKE UPPER(N'%[[]2026]%')", u"Nombre es como '*[2026]*'"},
    {"asterisk in quotes", kNombre, Engine::Jet, kSpanish, u"\"5*3\"", u"C.Nombre LIKE '%5[*]3%'",
     u"Nombre es como '*\"5*3\"*'"},
    {"ampersand within a word", kNombre, Engine::Jet, kSpanish, u"R&D", u"C.Nombre LIKE '%R&D%'",
     u"Nombre es como '*R&D*'"},
    {"ampersand between blanks in English", kNombre, Engine::Jet, kEnglish, u"Marks & Spencer",
     u"C.Nombre LIKE '%Marks%' And C.Nombre LIKE '%Spencer%'", u"Nombre is like '*Marks*' and is like '*Spencer*'"},
    {"connector in words is text, SQL Server", kNombre, Engine::SqlServer, kEnglish, u"Romeo and Julia",
     u" UPPER(C.Nombre) LIKE UPPER(N'%Romeo%') And  UPPER(C.Nombre) LIKE UPPER(N'%and%') And  UPPER(C.Nombre) LIKE UPPER(N'%Julia%')",
     u"Nombre is like '*Romeo*' and is like '*and*' and is like '*Julia*'"},
    {"dash between blanks", kNombre, Engine::Jet, kSpanish, u"VW - 02",
     u"C.Nombre LIKE '%VW%' And C.Nombre LIKE '%02%'", u"Nombre es como '*VW*' y es como '*02*'"},
    {"alternatives in French, SQL Server", kNombre, Engine::SqlServer, kFrench, u"Madrid; Par\u00eds",
     u" UPPER(C.Nombre) LIKE UPPER(N'%Madrid%') Or  UPPER(C.Nombre) LIKE UPPER(N'%Par\u00eds%')",
     u"Nombre est comme '*Madrid*'; est comme '*Par\u00eds*'"},
    {"range of texts", kNombre, Engine::Jet, kSpanish, u"A..C",
     u"C.Nombre>='A' And (C.Nombre<='C' Or C.Nombre LIKE 'C%')", u"Nombre >= A y <= C*"},
    {"two bounds", kNombre, Engine::Jet, kSpanish, u">=A & <C", u"C.Nombre>='A' And C.Nombre<'C'",
     u"Nombre >= A y < C"},
    {"empty, SQL Server", kNombre, Engine::SqlServer, kSpanish, u"=", u"(C.Nombre=N'' Or C.Nombre Is Null)",
     u"Nombre = ''"},
    {"empty, Oracle", kNombre, Engine::Oracle, kSpanish, u"\"\"", u"(C.Nombre Is Null)", u"Nombre = ''"},
    {"null", kNombre, Engine::Jet, kSpanish, u"Es Nulo", u"(C.Nombre Is Null)", u"Nombre Es Nulo"},
    {"not empty", kNombre, Engine::Jet, kSpanish, u"<>\"\"", u"Not (C.Nombre='' Or C.Nombre Is Null)", u"Nombre <> ''"},
    {"long text exactly, SQL Server", kNotas, Engine::SqlServer, kSpanish, u"=contrato", u"C.Notas LIKE N'contrato'",
     u"Notas = contrato"},
    {"long text, Oracle", kNotas, Engine::Oracle, kSpanish, u"urgente", u" UPPER(C.Notas) LIKE UPPER('%urgente%')",
     u"Notas es como '*urgente*'"},
    {"long text has no order, SQL Server", kNotas, Engine::SqlServer, kSpanish, u">a", u"", u""},
    {"number with thousands, SQL Server", kPrecio, Engine::SqlServer, kSpanish, u"1.234,5", u"P.Precio= 1234.5",
     u"Precio = 1234,5"},
    {"at least a number", kPrecio, Engine::Jet, kSpanish, u">=10", u"P.Precio>= 10", u"Precio >= 10"},
    {"range of numbers, Oracle", kPrecio, Engine::Oracle, kSpanish, u"10..20", u"P.Precio>= 10 And P.Precio<= 20",
     u"Precio >= 10 y <= 20"},
    {"range of numbers the other way about", kPrecio, Engine::Jet, kSpanish, u"20..10",
     u"P.Precio>= 10 And P.Precio<= 20", u"Precio >= 10 y <= 20"},
    {"range without a beginning", kPrecio, Engine::Jet, kSpanish, u"..-5", u"P.Precio<=-5", u"Precio <= -5"},
    {"three numbers, SQL Server", kPrecio, Engine::SqlServer, kSpanish, u"1;2;5",
     u"P.Precio= 1 Or P.Precio= 2 Or P.Precio= 5", u"Precio = 1; = 2; = 5"},
    {"number other than zero, Oracle", kPrecio, Engine::Oracle, kSpanish, u"<>0", u"(P.Precio<> 0 Or P.Precio Is Null)",
     u"Precio <> 0"},
    {"range of numbers in words", kPrecio, Engine::Jet, kSpanish, u"entre 10 y 20", u"P.Precio>= 10 And P.Precio<= 20",
     u"Precio >= 10 y <= 20"},
    {"bounds and an alternative in words, SQL Server", kPrecio, Engine::SqlServer, kSpanish, u">10 y <20 o =50",
     u"P.Precio> 10 And P.Precio< 20 Or P.Precio= 50", u"Precio > 10 y < 20; = 50"},
    {"null number", kPrecio, Engine::Jet, kSpanish, u"nulo", u"(P.Precio Is Null)", u"Precio Es Nulo"},
    {"number that is not null in English, SQL Server", kPrecio, Engine::SqlServer, kEnglish, u"not null",
     u"Not (P.Precio Is Null)", u"Precio <> Is Null"},
    {"number of letters, SQL Server", kPrecio, Engine::SqlServer, kSpanish, u"abc", u"", u""},
    {"range of numbers with a dash, SQL Server", kPrecio, Engine::SqlServer, kSpanish, u"12-15", u"", u""},
    {"sum", kTotal, Engine::Jet, kSpanish, u">1000", u"Sum(L.Imp)> 1000", u"Total > 1000"},
    {"date, Jet", kAlta, Engine::Jet, kSpanish, u"05/01/2011", u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-06#",
     u"Alta = 05/01/2011"},
    {"date, SQL Server", kAlta, Engine::SqlServer, kSpanish, u"05/01/2011",
     u"C.Alta>={ d '2011-01-05'} And C.Alta<{ d '2011-01-06'}", u"Alta = 05/01/2011"},
    {"date, Oracle", kAlta, Engine::Oracle, kSpanish, u"05/01/2011",
     u"C.Alta>= TO_DATE('2011-01-05','YYYY-MM-DD')  And C.Alta< TO_DATE('2011-01-06','YYYY-MM-DD') ",
     u"Alta = 05/01/2011"},
    {"up to a date", kAlta, Engine::Jet, kSpanish, u"<=05/01/2011", u"C.Alta<#2011-01-06#", u"Alta <= 05/01/2011"},
    {"other than a date", kAlta, Engine::Jet, kSpanish, u"<>05/01/2011",
     u"(C.Alta<#2011-01-05# Or C.Alta>=#2011-01-06# Or C.Alta Is Null)", u"Alta <> 05/01/2011"},
    {"year", kAlta, Engine::Jet, kSpanish, u"2011", u"C.Alta>=#2011-01-01# And C.Alta<#2012-01-01#",
     u"Alta >= 01/01/2011 y <= 31/12/2011"},
    {"month", kAlta, Engine::Jet, kSpanish, u"02/2011", u"C.Alta>=#2011-02-01# And C.Alta<#2011-03-01#",
     u"Alta >= 01/02/2011 y <= 28/02/2011"},
    {"range of days from today, Oracle", kAlta, Engine::Oracle, kSpanish, u"hoy-7..hoy",
     u"C.Alta>= TO_DATE('2010-12-29','YYYY-MM-DD')  And C.Alta< TO_DATE('2011-01-06','YYYY-MM-DD') ",
     u"Alta >= 29/12/2010 y <= 05/01/2011"},
    {"date and time, SQL Server", kAlta, Engine::SqlServer, kSpanish, u"05/01/2011 14:07",
     u"C.Alta>={ ts '2011-01-05 14:07:00'} And C.Alta<{ ts '2011-01-05 14:08:00'}", u"Alta = 05/01/2011 14:07"},
    {"from a date on in English", kAlta, Engine::Jet, kEnglish, u"01/05/2011..", u"C.Alta>=#2011-01-05#",
     u"Alta >= 01/05/2011"},
    {"range of dates in French", kAlta, Engine::Jet, kFrench, u"de 01/01/2011 \u00e0 31/01/2011",
     u"C.Alta>=#2011-01-01# And C.Alta<#2011-02-01#", u"Alta >= 01/01/2011 et <= 31/01/2011"},
    {"yes", kActivo, Engine::Jet, kSpanish, u"s\u00ed", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {"no in French, SQL Server", kActivo, Engine::SqlServer, kFrench, u"non", u" C.Activo=0 ", u"Activo = non"},
    {"other than yes, Oracle", kActivo, Engine::Oracle, kSpanish, u"<>s\u00ed", u"( C.Activo=0  Or C.Activo Is Null)",
     u"Activo <> s\u00ed"},
    {"injection, SQL Server", kNombre, Engine::SqlServer, kSpanish, u"x' Or '1'='1",
     u" UPPER(C.Nombre) LIKE UPPER(N'%x''%') And  UPPER(C.Nombre) LIKE UPPER(N'%Or%') And  UPPER(C.Nombre) LIKE UPPER(N'%''1''=''1%')",
     u"Nombre es como '*x'*' y es como '*Or*' y es como '*'1'='1*'"},
};

using SearchExample = Rows<::testing::Test, ExampleRow>;

TEST_P(SearchExample, GivesConditionAndCriterion) {
  const ExampleRow& row = GetParam();
  TestThread thread;
  speak(thread, row.language);
  const Text expected = row.condition.empty() ? Text(u"no search") : join({row.condition, u" | ", row.criterion});
  EXPECT_EQ(interpreted(row.column, row.engine, row.search), expected);
}

INSTANTIATE_TEST_SUITE_P(, SearchExample, ::testing::ValuesIn(kExamples), row_name);

}  // namespace
}  // namespace qvr::tests
