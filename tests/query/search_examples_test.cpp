// What users type, and what comes of it for each kind of column, engine and language.
#include "query/search_fixture.h"

namespace qvr::tests {
namespace {

struct Row {
  int number;
  const query::SearchColumn& column;
  Engine engine;
  UserLanguage language;
  TextView search, condition, criterion;  // no condition: no search
};

// "01/05/2011" is the fifth of January to an English-speaking user here.
const Row kRows[] = {
    {1, kNombre, Engine::Jet, kSpanish, u"p\u00e9rez", u"C.Nombre LIKE '%p\u00e9rez%'",
     u"Nombre es como '*p\u00e9rez*'"},
    {2, kNombre, Engine::SqlServer, kSpanish, u"p\u00e9rez", u" UPPER(C.Nombre) LIKE UPPER(N'%p\u00e9rez%')",
     u"Nombre es como '*p\u00e9rez*'"},
    {3, kNombre, Engine::Oracle, kSpanish, u"ana l\u00f3pez",
     u" UPPER(C.Nombre) LIKE UPPER('%ana%') And  UPPER(C.Nombre) LIKE UPPER('%l\u00f3pez%')",
     u"Nombre es como '*ana*' y es como '*l\u00f3pez*'"},
    {4, kNombre, Engine::Jet, kSpanish, u"\"ana l\u00f3pez\"", u"C.Nombre LIKE '%ana l\u00f3pez%'",
     u"Nombre es como '*ana l\u00f3pez*'"},
    {5, kNombre, Engine::Jet, kSpanish, u"Ana*", u"C.Nombre LIKE 'Ana%'", u"Nombre es como 'Ana*'"},
    {6, kNombre, Engine::SqlServer, kSpanish, u"*S.L.", u" UPPER(C.Nombre) LIKE UPPER(N'%S.L.')",
     u"Nombre es como '*S.L.'"},
    {7, kNombre, Engine::Oracle, kSpanish, u"Hans?n", u" UPPER(C.Nombre) LIKE UPPER('Hans_n')",
     u"Nombre es como 'Hans?n'"},
    {8, kNombre, Engine::SqlServer, kSpanish, u"=Ana", u" UPPER(C.Nombre)=UPPER(N'Ana')", u"Nombre = Ana"},
    {9, kNombre, Engine::Oracle, kSpanish, u"=O'Neil", u" UPPER(C.Nombre)=UPPER('O''Neil')", u"Nombre = O'Neil"},
    {10, kNombre, Engine::Jet, kSpanish, u"O'Neil", u"C.Nombre LIKE '%O''Neil%'", u"Nombre es como '*O'Neil*'"},
    {11, kNombre, Engine::SqlServer, kSpanish, u"<>Ana", u"( UPPER(C.Nombre)<>UPPER(N'Ana') Or C.Nombre Is Null)",
     u"Nombre <> Ana"},
    {12, kNombre, Engine::Jet, kSpanish, u"!test", u"(C.Nombre NOT LIKE '%test%' Or C.Nombre Is Null)",
     u"Nombre <> es como '*test*'"},
    {13, kNombre, Engine::Oracle, kEnglish, u"LIKE Ana*", u" UPPER(C.Nombre) LIKE UPPER('Ana%')",
     u"Nombre is like 'Ana*'"},
    {14, kNombre, Engine::SqlServer, kSpanish, u"50%", u" UPPER(C.Nombre) LIKE UPPER(N'%50!%%') ESCAPE '!'",
     u"Nombre es como '*50%*'"},
    {15, kNombre, Engine::Jet, kSpanish, u"50%", u"C.Nombre LIKE '%50[%]%'", u"Nombre es como '*50%*'"},
    {16, kNombre, Engine::Oracle, kSpanish, u"50%_a", u" UPPER(C.Nombre) LIKE UPPER('%50!%!_a%') ESCAPE '!'",
     u"Nombre es como '*50%_a*'"},
    {17, kNombre, Engine::SqlServer, kSpanish, u"[2026]", u" UPPER(C.Nombre) LIKE UPPER(N'%[[]2026]%')",
     u"Nombre es como '*[2026]*'"},
    {18, kNombre, Engine::Jet, kSpanish, u"\"5*3\"", u"C.Nombre LIKE '%5[*]3%'", u"Nombre es como '*\"5*3\"*'"},
    {19, kNombre, Engine::Jet, kSpanish, u"R&D", u"C.Nombre LIKE '%R&D%'", u"Nombre es como '*R&D*'"},
    {20, kNombre, Engine::Jet, kEnglish, u"Marks & Spencer", u"C.Nombre LIKE '%Marks%' And C.Nombre LIKE '%Spencer%'",
     u"Nombre is like '*Marks*' and is like '*Spencer*'"},
    {21, kNombre, Engine::SqlServer, kEnglish, u"Romeo and Julia",
     u" UPPER(C.Nombre) LIKE UPPER(N'%Romeo%') And  UPPER(C.Nombre) LIKE UPPER(N'%and%') And  UPPER(C.Nombre) LIKE UPPER(N'%Julia%')",
     u"Nombre is like '*Romeo*' and is like '*and*' and is like '*Julia*'"},
    {22, kNombre, Engine::Jet, kSpanish, u"VW - 02", u"C.Nombre LIKE '%VW%' And C.Nombre LIKE '%02%'",
     u"Nombre es como '*VW*' y es como '*02*'"},
    {23, kNombre, Engine::SqlServer, kFrench, u"Madrid; Par\u00eds",
     u" UPPER(C.Nombre) LIKE UPPER(N'%Madrid%') Or  UPPER(C.Nombre) LIKE UPPER(N'%Par\u00eds%')",
     u"Nombre est comme '*Madrid*'; est comme '*Par\u00eds*'"},
    {24, kNombre, Engine::Jet, kSpanish, u"A..C", u"C.Nombre>='A' And (C.Nombre<='C' Or C.Nombre LIKE 'C%')",
     u"Nombre >= A y <= C*"},
    {25, kNombre, Engine::Jet, kSpanish, u">=A & <C", u"C.Nombre>='A' And C.Nombre<'C'", u"Nombre >= A y < C"},
    {26, kNombre, Engine::SqlServer, kSpanish, u"=", u"(C.Nombre=N'' Or C.Nombre Is Null)", u"Nombre = ''"},
    {27, kNombre, Engine::Oracle, kSpanish, u"\"\"", u"(C.Nombre Is Null)", u"Nombre = ''"},
    {28, kNombre, Engine::Jet, kSpanish, u"Es Nulo", u"(C.Nombre Is Null)", u"Nombre Es Nulo"},
    {29, kNombre, Engine::Jet, kSpanish, u"<>\"\"", u"Not (C.Nombre='' Or C.Nombre Is Null)", u"Nombre <> ''"},
    {30, kNotas, Engine::SqlServer, kSpanish, u"=contrato", u"C.Notas LIKE N'contrato'", u"Notas = contrato"},
    {31, kNotas, Engine::Oracle, kSpanish, u"urgente", u" UPPER(C.Notas) LIKE UPPER('%urgente%')",
     u"Notas es como '*urgente*'"},
    {32, kNotas, Engine::SqlServer, kSpanish, u">a", u"", u""},
    {33, kPrecio, Engine::SqlServer, kSpanish, u"1.234,5", u"P.Precio= 1234.5", u"Precio = 1234,5"},
    {34, kPrecio, Engine::Jet, kSpanish, u">=10", u"P.Precio>= 10", u"Precio >= 10"},
    {35, kPrecio, Engine::Oracle, kSpanish, u"10..20", u"P.Precio>= 10 And P.Precio<= 20", u"Precio >= 10 y <= 20"},
    {36, kPrecio, Engine::Jet, kSpanish, u"20..10", u"P.Precio>= 10 And P.Precio<= 20", u"Precio >= 10 y <= 20"},
    {37, kPrecio, Engine::Jet, kSpanish, u"..-5", u"P.Precio<=-5", u"Precio <= -5"},
    {38, kPrecio, Engine::SqlServer, kSpanish, u"1;2;5", u"P.Precio= 1 Or P.Precio= 2 Or P.Precio= 5",
     u"Precio = 1; = 2; = 5"},
    {39, kPrecio, Engine::Oracle, kSpanish, u"<>0", u"(P.Precio<> 0 Or P.Precio Is Null)", u"Precio <> 0"},
    {40, kPrecio, Engine::Jet, kSpanish, u"entre 10 y 20", u"P.Precio>= 10 And P.Precio<= 20", u"Precio >= 10 y <= 20"},
    {41, kPrecio, Engine::SqlServer, kSpanish, u">10 y <20 o =50", u"P.Precio> 10 And P.Precio< 20 Or P.Precio= 50",
     u"Precio > 10 y < 20; = 50"},
    {42, kPrecio, Engine::Jet, kSpanish, u"nulo", u"(P.Precio Is Null)", u"Precio Es Nulo"},
    {43, kPrecio, Engine::SqlServer, kEnglish, u"not null", u"Not (P.Precio Is Null)", u"Precio <> Is Null"},
    {44, kPrecio, Engine::SqlServer, kSpanish, u"abc", u"", u""},
    {44, kPrecio, Engine::SqlServer, kSpanish, u"12-15", u"", u""},
    {45, kTotal, Engine::Jet, kSpanish, u">1000", u"Sum(L.Imp)> 1000", u"Total > 1000"},
    {46, kAlta, Engine::Jet, kSpanish, u"05/01/2011", u"C.Alta>=#2011-01-05# And C.Alta<#2011-01-06#",
     u"Alta = 05/01/2011"},
    {47, kAlta, Engine::SqlServer, kSpanish, u"05/01/2011", u"C.Alta>={ d '2011-01-05'} And C.Alta<{ d '2011-01-06'}",
     u"Alta = 05/01/2011"},
    {48, kAlta, Engine::Oracle, kSpanish, u"05/01/2011",
     u"C.Alta>= TO_DATE('2011-01-05','YYYY-MM-DD')  And C.Alta< TO_DATE('2011-01-06','YYYY-MM-DD') ",
     u"Alta = 05/01/2011"},
    {49, kAlta, Engine::SqlServer, kSpanish, u"<=05/01/2011", u"C.Alta<{ d '2011-01-06'}", u"Alta <= 05/01/2011"},
    {50, kAlta, Engine::Jet, kSpanish, u"<>05/01/2011",
     u"(C.Alta<#2011-01-05# Or C.Alta>=#2011-01-06# Or C.Alta Is Null)", u"Alta <> 05/01/2011"},
    {51, kAlta, Engine::SqlServer, kSpanish, u"2011", u"C.Alta>={ d '2011-01-01'} And C.Alta<{ d '2012-01-01'}",
     u"Alta >= 01/01/2011 y <= 31/12/2011"},
    {52, kAlta, Engine::Jet, kSpanish, u"02/2011", u"C.Alta>=#2011-02-01# And C.Alta<#2011-03-01#",
     u"Alta >= 01/02/2011 y <= 28/02/2011"},
    {53, kAlta, Engine::Oracle, kSpanish, u"hoy-7..hoy",
     u"C.Alta>= TO_DATE('2010-12-29','YYYY-MM-DD')  And C.Alta< TO_DATE('2011-01-06','YYYY-MM-DD') ",
     u"Alta >= 29/12/2010 y <= 05/01/2011"},
    {54, kAlta, Engine::SqlServer, kSpanish, u"05/01/2011 14:07",
     u"C.Alta>={ ts '2011-01-05 14:07:00'} And C.Alta<{ ts '2011-01-05 14:08:00'}", u"Alta = 05/01/2011 14:07"},
    {55, kAlta, Engine::Jet, kEnglish, u"01/05/2011..", u"C.Alta>=#2011-01-05#", u"Alta >= 01/05/2011"},
    {56, kAlta, Engine::SqlServer, kFrench, u"de 01/01/2011 \u00e0 31/01/2011",
     u"C.Alta>={ d '2011-01-01'} And C.Alta<{ d '2011-02-01'}", u"Alta >= 01/01/2011 et <= 31/01/2011"},
    {57, kActivo, Engine::Jet, kSpanish, u"s\u00ed", u" C.Activo<>0 ", u"Activo = s\u00ed"},
    {58, kActivo, Engine::SqlServer, kFrench, u"non", u" C.Activo=0 ", u"Activo = non"},
    {59, kActivo, Engine::Oracle, kSpanish, u"<>s\u00ed", u"( C.Activo=0  Or C.Activo Is Null)", u"Activo <> s\u00ed"},
    {60, kNombre, Engine::SqlServer, kSpanish, u"x' Or '1'='1",
     u" UPPER(C.Nombre) LIKE UPPER(N'%x''%') And  UPPER(C.Nombre) LIKE UPPER(N'%Or%') And  UPPER(C.Nombre) LIKE UPPER(N'%''1''=''1%')",
     u"Nombre es como '*x'*' y es como '*Or*' y es como '*'1'='1*'"},
};

TEST(SearchExamples, ConditionAndCriterion) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.number);
    TestThread thread;
    speak(thread, row.language);
    const Text expected = row.condition.empty() ? Text(u"no search") : join({row.condition, u" | ", row.criterion});
    EXPECT_EQ(interpreted(row.column, row.engine, row.search), expected);
  }
}

}  // namespace
}  // namespace qvr::tests
