// Stored definition texts: compatibility with the first version, and damaged texts.
#include "query/definition_text.h"
#include "query/query_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

// Written by the first version, and to be read by every later one.
constexpr TextView kKept =
    u"cSQL20 1<*MotorBD=N*>2<*NombreObjeto=T*>Ventas<*UsarDistinct=L*>1<*TOP=N*>5"
    u"<*Cabecera=T*>SELECT DISTINCT  TOP 5 <*Columna=T*>C.Nombre<*Tipo=T*>T<*Campo=T*>Nombre"
    u"<*Columna=T*>Max(C.Alta)<*Tipo=T*>F<*Campo=T*>Alta<*FROM=T*> FROM Clientes C <*WHERE=T*>C.Baja=0"
    u"<*NumColumnasGROUPBY=N*>1<*HAVING=T*><*ORDERBY=T*>C.Nombre<*WHERE+=T*>(C.Pa\u00eds='<**')<*HAVING+=T*>"
    u"<*ORDERBY+=T*>1,-2<*Criterio=T*>Pa\u00eds = <**<*fin=B9219E29*>";

class Csql20DamageTest : public QueryTest {
 protected:
  // The text is refused with the box that names the procedure, and whatever the query was before is gone.
  void expect_refused(TextView text, std::int32_t number = 13) {
    cSQL20 query;
    ASSERT_TRUE(query.Crear(full(Engine::Oracle)));
    EXPECT_FALSE(showing({failed(u"CreareDesdeTextoDefinicion", number)},
                         [&] { return query.CrearDesdeTextoDefinicion(text); }));
    EXPECT_FALSE(query.Creado());
    EXPECT_EQ(query.SQL(), u"     ");
    EXPECT_EQ(query.SQLOriginal(), u"     ");
    EXPECT_EQ(query.MotorBD(), Engine::None);
    EXPECT_EQ(query.NumColumna(u"Nombre"), 0);
    EXPECT_EQ(query.TextoDefinicion(), u"");
    EXPECT_EQ(traced(), Traces{trace_of(u"cSQL20.CrearDesdeTextoDefinicion", number)});
  }
};

TEST_F(Csql20DamageTest, ReadsATextOfTheFirstVersion) {
  cSQL20 query;
  ASSERT_TRUE(query.CrearDesdeTextoDefinicion(kKept));
  EXPECT_EQ(query.SQL(),
            u"SELECT DISTINCT  TOP 5 C.Nombre As [Nombre], Max(C.Alta) As [Alta]  FROM Clientes C  WHERE "
            u"C.Baja=0 And (C.Pa\u00eds='<*') GROUP BY C.Nombre  ORDER BY 2 DESC,1");
  EXPECT_EQ(query.SQLOriginal(),
            u"SELECT DISTINCT  TOP 5 C.Nombre As [Nombre], Max(C.Alta) As [Alta]  FROM Clientes "
            u"C  WHERE C.Baja=0 GROUP BY C.Nombre  ORDER BY C.Nombre");
  EXPECT_EQ(query.CriterioActual(), u"Pa\u00eds = <*");
  EXPECT_EQ(query.TipoCampo(u"alta"), u"F");
  EXPECT_EQ(query.TOP(), 5);
  EXPECT_EQ(query.TextoDefinicion(), kKept);
}

// A column of fixed width fills texts up with blanks, and a file ends its lines.
constexpr TextView kWhiteEnds[] = {u"", u" ", u"\t", u"\r\n", u"\n", u" \t \r\n \r\n"};

TEST_F(Csql20DamageTest, ReadsATextWithWhiteSpaceBehindIt) {
  for (const TextView white : kWhiteEnds) {
    SCOPED_TRACE(white.size());
    cSQL20 query;
    EXPECT_TRUE(query.CrearDesdeTextoDefinicion(join({kKept, white})));
    EXPECT_EQ(query.TextoDefinicion(), kKept);
  }
}

TEST_F(Csql20DamageTest, RefusesEveryTruncation) {
  for (std::size_t size = 0; size < kKept.size(); ++size) {
    SCOPED_TRACE(size);
    expect_refused(kKept.substr(0, size));
    if (size > 0) expect_refused(kKept.substr(size));
  }
}

TEST_F(Csql20DamageTest, RefusesEveryChangeOfOneCharacter) {
  for (std::size_t at = 0; at < kKept.size(); ++at) {
    SCOPED_TRACE(at);
    const Text before(kKept.substr(0, at)), after(kKept.substr(at + 1));
    expect_refused(before + after);
    expect_refused(join({before, Text(2, kKept[at]), after}));
    const char16_t lower = static_cast<char16_t>(kKept[at] ^ 0x20);
    expect_refused(join({before, TextView(&lower, 1), after}));
    const char16_t wide = static_cast<char16_t>(kKept[at] ^ 0x100);
    expect_refused(join({before, TextView(&wide, 1), after}));
  }
}

struct OtherTextRow {
  const char* name;
  Text text;
};
const OtherTextRow kOtherTexts[] = {
    {"empty", u""},
    {"a blank", u" "},
    {"a statement", u"SELECT a FROM b"},
    {"a blank before it", u" " + Text(kKept)},
    {"twice", Text(kKept) + Text(kKept)},
    {"a letter behind it", Text(kKept) + u"x"},
    {"a letter behind a blank behind it", Text(kKept) + u" x"},
    {"a no-break space behind it", Text(kKept) + u"\u00a0"},
    {"NUL behind it", Text(kKept) + Text(1, u'\0')},
    {"a blank within its end mark", Text(kKept.substr(0, kKept.size() - 2)) + u" *>"},
    {"the first character of a mark", Text(1000, u'<')},
    {"NUL", Text(5, u'\0')},
};

using OtherText = Rows<Csql20DamageTest, OtherTextRow>;

TEST_P(OtherText, IsRefused) { expect_refused(GetParam().text); }

INSTANTIATE_TEST_SUITE_P(, OtherText, ::testing::ValuesIn(kOtherTexts), row_name);

// Texts whose end mark is right all the same: somebody wrote them so.
struct NeverWrittenRow {
  const char* name;
  TextView what, by;
  std::int32_t number = 13;
};
constexpr NeverWrittenRow kNeverWritten[] = {
    {"another version", u"cSQL20 1", u"cSQL20 2"},
    {"another class", u"cSQL20 1", u"uSQL20 1"},
    {"a blank behind the version", u"cSQL20 1", u"cSQL20 1 "},
    {"no engine", u"<*MotorBD=N*>2", u""},
    {"the engine as a text", u"<*MotorBD=N*>2", u"<*MotorBD=T*>2"},
    {"the engine's name in another case", u"<*MotorBD=N*>2", u"<*motorbd=N*>2"},
    {"an empty engine", u"<*MotorBD=N*>2", u"<*MotorBD=N*>"},
    {"an engine with a plus", u"<*MotorBD=N*>2", u"<*MotorBD=N*>+2"},
    {"an engine behind a blank", u"<*MotorBD=N*>2", u"<*MotorBD=N*> 2"},
    {"an engine with a zero before it", u"<*MotorBD=N*>2", u"<*MotorBD=N*>02"},
    {"an engine of minus zero", u"<*MotorBD=N*>2", u"<*MotorBD=N*>-0"},
    {"an engine too great", u"<*MotorBD=N*>2", u"<*MotorBD=N*>2147483648"},
    {"an engine of another script's digits", u"<*MotorBD=N*>2", u"<*MotorBD=N*>\u0132"},
    {"the engine twice", u"<*MotorBD=N*>2", u"<*MotorBD=N*>2<*MotorBD=N*>2"},
    {"a truth of two", u"UsarDistinct=L*>1", u"UsarDistinct=L*>2"},
    {"an empty truth", u"UsarDistinct=L*>1", u"UsarDistinct=L*>"},
    {"a truth with a zero before it", u"UsarDistinct=L*>1", u"UsarDistinct=L*>01"},
    {"a limit with decimals", u"<*TOP=N*>5", u"<*TOP=N*>5.0"},
    {"a column without its type", u"<*Tipo=T*>T", u""},
    {"the type behind the field", u"<*Tipo=T*>T<*Campo=T*>Nombre", u"<*Campo=T*>Nombre<*Tipo=T*>T"},
    {"more groups than columns", u"GROUPBY=N*>1", u"GROUPBY=N*>3", 9},
    {"groups below zero", u"GROUPBY=N*>1", u"GROUPBY=N*>-1"},
    {"too many groups", u"GROUPBY=N*>1", u"GROUPBY=N*>32768"},
    {"a click beside the columns", u"1,-2", u"1,-3"},
    {"a column clicked twice", u"1,-2", u"1,2,1"},
    {"a column clicked twice downwards", u"1,-2", u"1,-1"},
    {"a click on no column", u"1,-2", u"0"},
    {"clicks of a comma", u"1,-2", u","},
    {"clicks with a comma behind", u"1,-2", u"1,"},
    {"clicks with a blank", u"1,-2", u"1 ,2"},
    {"a click with a plus", u"1,-2", u"+1"},
    {"a click too great", u"1,-2", u"99999"},
    {"a click far too great", u"1,-2", u"999999999999"},
    {"no criterion", u"<*Criterio=T*>", u""},
    {"a criterion's mark without its name and type", u"<*Criterio=T*>", u"<*>"},
    {"a criterion's mark that does not end", u"<*Criterio=T*>", u"<*Criterio=T"},
    {"a criterion's mark without its name", u"<*Criterio=T*>", u"<*=T*>"},
    {"a criterion's mark without its sign", u"<*Criterio=T*>", u"<*T*>"},
    {"a criterion's mark without its equals sign", u"<*Criterio=T*>", u"<*CriterioT*>"},
    {"another mark behind", u"<*Criterio=T*>", u"<*Criterio=T*>x<*Otro=T*>"},
    {"a sign that is not doubled", u"Pa\u00eds = <**", u"Pa\u00eds = <*"},
    {"a union's mark", u"Pa\u00eds = <**", u"<*uSQL_TD*>"},
};

using NeverWritten = Rows<Csql20DamageTest, NeverWrittenRow>;

TEST_P(NeverWritten, IsRefused) {
  const Text kept(kKept.substr(0, kKept.rfind(u"<*fin=")));
  const auto sealed = [](TextView text) { return query::DefinitionWriter(text).finished(); };
  ASSERT_EQ(sealed(kept), kKept);
  const Text changed = replace_all(kept, GetParam().what, GetParam().by);
  ASSERT_NE(changed, kept);
  expect_refused(sealed(changed), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(, NeverWritten, ::testing::ValuesIn(kNeverWritten), row_name);

TEST_F(Csql20DamageTest, TheCompleteCriterionIsWhatWasAdded) {
  cSQL20 query;
  ASSERT_TRUE(query.CrearDesdeTextoDefinicion(kKept));
  const Text complete = query.CriterioActualCompleto(), sql = query.SQL(), original = query.SQLOriginal();
  query.RestauraOriginal(true, true);
  EXPECT_EQ(query.SQL(), original);
  query.CriterioActualCompleto(complete);
  EXPECT_EQ(query.SQL(), sql);
  EXPECT_EQ(query.CriterioActual(), u"Pa\u00eds = <*");
  EXPECT_FALSE(query.AmpliarCondicionWhere(u"c.pa\u00cds='<*'", u"otra vez"));
  query.CriterioActualCompleto(u"");
  EXPECT_EQ(query.SQL(), original);
  EXPECT_EQ(query.CriterioActual(), u"");
}

// In place of a complete criterion: each is a function of the one that the query gave.
struct DamagedCriterionRow {
  const char* name;
  Text (*damaged)(const Text& complete);
};
constexpr TextView kMark = u"<*cSQL_CRI*>";
constexpr DamagedCriterionRow kDamagedCriteria[] = {
    {"a letter", [](const Text&) { return Text(u"x"); }},
    {"two pieces", [](const Text&) { return Text(kMark); }},
    {"three pieces",
     [](const Text&) {
       return join({kMark, kMark});
     }},
    {"five pieces",
     [](const Text&) {
       return join({kMark, kMark, kMark, kMark, u"x"});
     }},
    {"six pieces",
     [](const Text& complete) {
       return join({complete, kMark, kMark});
     }},
    {"a further mark with a letter behind it",
     [](const Text& complete) {
       return join({complete, kMark, u" x"});
     }},
    {"a click beside the columns",
     [](const Text&) {
       return join({kMark, kMark, u"3", kMark});
     }},
    {"a click on no column",
     [](const Text&) {
       return join({kMark, kMark, u"0", kMark});
     }},
    {"a column clicked twice",
     [](const Text&) {
       return join({kMark, kMark, u"1,1", kMark});
     }},
    {"a click on a letter",
     [](const Text&) {
       return join({kMark, kMark, u"a", kMark});
     }},
    {"a click behind a blank",
     [](const Text&) {
       return join({kMark, kMark, u" 1", kMark});
     }},
    {"a sign that is not doubled",
     [](const Text&) {
       return join({u"<*x", kMark, kMark, kMark});
     }},
    {"a sign that is not doubled at the end",
     [](const Text&) {
       return join({kMark, u"<*", kMark, kMark});
     }},
    {"a union's mark",
     [](const Text&) {
       return join({kMark, kMark, kMark, u"<*uSQL_CRI*>"});
     }},
    {"marks in another case", [](const Text& complete) { return replace_all(complete, kMark, u"<*CSQL_CRI*>"); }},
};

using DamagedCriterion = Rows<Csql20DamageTest, DamagedCriterionRow>;

TEST_P(DamagedCriterion, ChangesNothing) {
  cSQL20 query;
  ASSERT_TRUE(query.CrearDesdeTextoDefinicion(kKept));
  const Text complete = query.CriterioActualCompleto(), sql = query.SQL();
  query.CriterioActualCompleto(GetParam().damaged(complete));
  EXPECT_EQ(query.SQL(), sql);
  EXPECT_EQ(query.CriterioActualCompleto(), complete);
  EXPECT_EQ(traced(), Traces{trace_of(u"cSQL20.CriterioActualCompleto", 13)});
}

INSTANTIATE_TEST_SUITE_P(, DamagedCriterion, ::testing::ValuesIn(kDamagedCriteria), row_name);

TEST_F(Csql20DamageTest, ACompleteCriterionOfEmptyPiecesIsNothingAdded) {
  cSQL20 query;
  ASSERT_TRUE(query.CrearDesdeTextoDefinicion(kKept));
  query.CriterioActualCompleto(join({kMark, kMark, kMark}));
  EXPECT_EQ(query.SQL(), query.SQLOriginal());
}

TEST_F(Csql20DamageTest, ACompleteCriterionMayHaveWhiteSpaceBehindIt) {
  cSQL20 query;
  ASSERT_TRUE(query.CrearDesdeTextoDefinicion(kKept));
  const Text complete = query.CriterioActualCompleto(), narrowed = query.SQL();
  for (const TextView white : kWhiteEnds) {
    SCOPED_TRACE(white.size());
    for (const TextView mark : {TextView(), kMark}) {
      query.RestauraOriginal(true, true);
      query.CriterioActualCompleto(join({complete, mark, white}));
      EXPECT_EQ(query.SQL(), narrowed);
      EXPECT_EQ(query.CriterioActualCompleto(), complete);
    }
  }
}

TEST_F(Csql20DamageTest, ACompleteCriterionOfWhiteSpaceRestores) {
  cSQL20 query;
  for (const TextView white : kWhiteEnds) {
    SCOPED_TRACE(white.size());
    ASSERT_TRUE(query.CrearDesdeTextoDefinicion(kKept));
    query.CriterioActualCompleto(white);
    EXPECT_EQ(query.SQL(), query.SQLOriginal());
    EXPECT_EQ(query.CriterioActual(), u"");
  }
}

}  // namespace
}  // namespace qvr::tests
