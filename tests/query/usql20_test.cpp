// Unions: which member of the union answers.
#include "query/usql20.h"

#include "query/query_fixture.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class Usql20Test : public QueryTest {
 protected:
  // Members over the tables t1, t2 and so on, the first in an order.
  void create(int members, Engine engine = Engine::Jet) {
    for (int i = 1; i <= members; ++i) {
      QueryRequest wanted = request(engine, list({u"a", u"T>a", u"b", u"F>b"}), u"t" + decimal(i));
      wanted.TextoORDERBYInicial = i == 1 ? u"a" : u"z";
      ASSERT_TRUE(query.Crear(wanted));
    }
  }

  static Text select(int number, TextView where = u"", TextView limit = u"") {
    return join({u"SELECT ", limit, u"a As [a], b As [b]  FROM t", decimal(number), u"  ", where, u"  "});
  }

  uSQL20 query;
};

TEST_F(Usql20Test, IsEmptyBeforeThereIsAMember) {
  query.AdoptaComoOriginal(true, true, true);
  query.RestauraOriginal(true, true);
  query.CambiaOrden(u"a");
  query.CriterioActualCompleto(u"x");
  query.CriterioActualCompleto(u"");
  query.TOP(5);
  query.Idioma(3);
  query.MotorBD(Engine::Oracle);
  EXPECT_EQ(query.Name(), u"uSQL20");
  EXPECT_FALSE(query.Creado());
  for (const Text& text : {query.SQL(), query.SQLOriginal(), query.SQLSinOrden(), query.SQLOriginalSinOrden(),
                           query.ParteOrder(false), query.TextoDefinicion(), query.CriterioActual(),
                           query.CriterioActualCompleto(), query.TipoCampo(u"a"), query.Tag()}) {
    EXPECT_EQ(text, u"");
  }
  EXPECT_EQ(query.TOP(), 0);
  EXPECT_EQ(query.Idioma(), 0);
  EXPECT_EQ(query.MotorBD(), Engine::None);
  EXPECT_EQ(query.NumColumna(u"a"), 0);
  EXPECT_EQ(query.NumColumnas(), 0);
  EXPECT_FALSE(query.AmpliarCondicionWhere(u"a=1", u"a"));
  EXPECT_FALSE(query.AmpliarOrden(1));
  EXPECT_FALSE(query.InterpretarBusqueda(u"a", u"x", u""));
  EXPECT_NE(thread_state().idioma.Idioma(), 3) << "there is no member that would set it";
  EXPECT_EQ(traced(), Traces(2, u"uSQL20.CriterioActualCompleto: 13 Type mismatch"));
}

TEST_F(Usql20Test, OneMemberGivesItsOwnStatements) {
  create(1);
  EXPECT_TRUE(query.Creado());
  EXPECT_EQ(query.SQLSinOrden(), select(1));
  EXPECT_EQ(query.SQLOriginalSinOrden(), select(1));
  EXPECT_EQ(query.SQL(), select(1) + u" ORDER BY a");
  EXPECT_EQ(query.SQLOriginal(), select(1) + u" ORDER BY a");
}

TEST_F(Usql20Test, JoinsTheStatementsInTheOrderOfTheFirst) {
  create(3);
  const Text joined = join({select(1), u" UNION ", select(2), u" UNION ", select(3)});
  EXPECT_EQ(query.SQLSinOrden(), joined);
  EXPECT_EQ(query.SQLOriginalSinOrden(), joined);
  EXPECT_EQ(query.SQL(), joined + u" ORDER BY a");
  EXPECT_EQ(query.SQLOriginal(), joined + u" ORDER BY a");
  EXPECT_FALSE(query.AmpliarOrden(2));
  EXPECT_EQ(query.ParteOrder(false), u"ORDER BY 2 DESC");
  EXPECT_EQ(query.ParteOrder(true), u"2 DESC");
  EXPECT_EQ(query.SQLOriginal(), joined + u" ORDER BY 2 DESC") << "the current order, odd as it is";
  query.CambiaOrden(u"");
  EXPECT_EQ(query.SQL(), joined + u" ");
  EXPECT_EQ(query.SQLOriginal(), joined + u" ");
}

TEST_F(Usql20Test, ARefusedMemberIsDropped) {
  create(1);
  EXPECT_FALSE(query.Crear(request(Engine::Jet, u"a")));
  EXPECT_FALSE(
      showing({failed(u"ConstruirSelect", 9)}, [&] { return query.Crear(request(Engine::Jet, list({u"a"}))); }));
  EXPECT_EQ(query.SQLSinOrden(), select(1));
  uSQL20 other;
  EXPECT_FALSE(other.Crear(request(Engine::Jet, u"a")));
  EXPECT_FALSE(other.Creado());
  EXPECT_EQ(other.TOP(), 0);
  EXPECT_EQ(traced(),
            (Traces{u"cSQL20.Crear: 13 ColumnasSELECT is not an array", u"cSQL20.Crear: 9 Subscript out of range",
                    u"cSQL20.Crear: 13 ColumnasSELECT is not an array"}));
}

TEST_F(Usql20Test, NarrowsTheLastMember) {
  create(2);
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"uno"));
  EXPECT_FALSE(query.AmpliarCondicionWhere(u"A=1", u"uno"));
  EXPECT_EQ(query.SQLSinOrden(), join({select(1), u" UNION ", select(2, u"WHERE (a=1)")}));
  EXPECT_EQ(query.SQLOriginalSinOrden(), join({select(1), u" UNION ", select(2)}));
  EXPECT_EQ(query.CriterioActual(), u"") << "of the first member";
  EXPECT_EQ(query.CriterioActualCompleto(),
            u"<*cSQL_CRI*><*cSQL_CRI*><*cSQL_CRI*><*uSQL_CRI*>"
            u"(a=1)<*cSQL_CRI*><*cSQL_CRI*><*cSQL_CRI*>uno");
  create(1);
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"uno")) << "the member that came last does not have it yet";
}

TEST_F(Usql20Test, AdoptsAndRestoresEveryMember) {
  create(2);
  ASSERT_TRUE(query.InterpretarBusqueda(u"a", u"=x", u""));
  EXPECT_FALSE(query.AmpliarOrden(1));
  const Text narrowed = join({select(1, u"WHERE (a='x')"), u" UNION ", select(2, u"WHERE (a='x')")});
  const Text original = join({select(1), u" UNION ", select(2)});
  EXPECT_EQ(query.SQL(), narrowed + u" ORDER BY 1");
  query.RestauraOriginal(true, false);
  EXPECT_EQ(query.SQL(), original + u" ORDER BY 1");
  query.RestauraOriginal(false, true);
  EXPECT_EQ(query.SQL(), original + u" ORDER BY a");
  ASSERT_TRUE(query.InterpretarBusqueda(u"a", u"=x", u""));
  EXPECT_FALSE(query.AmpliarOrden(2));
  query.AdoptaComoOriginal(true, true, true);
  query.RestauraOriginal(true, true);
  EXPECT_EQ(query.SQL(), narrowed + u" ORDER BY 2 DESC");
  EXPECT_EQ(query.SQLOriginalSinOrden(), narrowed);
}

// All members are asked, also behind one that does not know the column, and all have to agree.
TEST_F(Usql20Test, SearchesInEveryMember) {
  create(1);
  ASSERT_TRUE(query.Crear(request(Engine::Jet, list({u"c", u"T"}), u"t2")));
  create(1);
  EXPECT_FALSE(showing({failed(u"TipoCampo(a)", 5)}, [&] { return query.InterpretarBusqueda(u"a", u"=x", u"col"); }));
  EXPECT_EQ(query.SQLSinOrden(),
            join({select(1, u"WHERE (a='x')"), u" UNION SELECT c  FROM t2     UNION ", select(1, u"WHERE (a='x')")}));
  EXPECT_EQ(query.CriterioActual(), u"col = x");
  EXPECT_EQ(traced(), Traces{u"cSQL20.TipoCampo: 5 Invalid procedure call or argument"});
}

TEST_F(Usql20Test, TheFirstMemberAnswers) {
  create(1);
  ASSERT_TRUE(query.Crear(request(Engine::Jet, list({u"c", u"N"}), u"t2")));
  EXPECT_EQ(query.NumColumnas(), 2);
  EXPECT_EQ(query.NumColumna(u"B"), 2);
  EXPECT_EQ(query.NumColumna(u"c"), 0);
  EXPECT_EQ(query.TipoCampo(u"b"), u"F");
  EXPECT_EQ(showing({failed(u"TipoCampo(c)", 5)}, [&] { return query.TipoCampo(u"c"); }), u"");
  EXPECT_FALSE(showing({failed(u"AmpliarOrden", 9)}, [&] { return query.AmpliarOrden(3); }));
  EXPECT_EQ(query.ParteOrder(true), u"a");
  EXPECT_EQ(traced(), (Traces{u"cSQL20.TipoCampo: 5 Invalid procedure call or argument",
                              u"cSQL20.AmpliarOrden: 9 Subscript out of range"}));
}

TEST_F(Usql20Test, LimitAndEngineGoToEveryMember) {
  create(2, Engine::SqlServer);
  query.TOP(7);
  EXPECT_EQ(query.TOP(), 7);
  EXPECT_EQ(query.SQLSinOrden(), join({select(1, u"", u" TOP 7 "), u" UNION ", select(2, u"", u" TOP 7 ")}));
  query.MotorBD(Engine::Oracle);
  EXPECT_EQ(query.MotorBD(), Engine::Oracle);
  EXPECT_EQ(query.SQLSinOrden(), join({select(1, u"WHERE  (RowNum<=7) ", u" TOP 7 "), u" UNION ",
                                       select(2, u"WHERE  (RowNum<=7) ", u" TOP 7 ")}));
  query.MotorBD(Engine::Jet);
  EXPECT_EQ(query.MotorBD(), Engine::Jet);
}

TEST_F(Usql20Test, AWrittenLanguageIsTheThreads) {
  create(2);
  query.Idioma(1);
  EXPECT_EQ(thread_state().idioma.Idioma(), 1);
}

TEST_F(Usql20Test, ReadingTheLanguageLimitsTheRows) {
  create(2, Engine::SqlServer);
  query.Idioma(3);
  EXPECT_EQ(query.TOP(), 0);
  EXPECT_EQ(query.Idioma(), 0);
  EXPECT_EQ(query.TOP(), 3);
  EXPECT_EQ(query.SQLSinOrden(), join({select(1, u"", u" TOP 3 "), u" UNION ", select(2, u"", u" TOP 3 ")}));
  query.Idioma(0);
  EXPECT_EQ(query.Idioma(), 0);
  EXPECT_EQ(query.TOP(), 0);
  EXPECT_EQ(query.SQLSinOrden(), join({select(1, u"", u" "), u" UNION ", select(2, u"", u" ")}));
}

TEST_F(Usql20Test, TheTagIsItsOwn) {
  query.Tag(u"nota");
  create(2);
  EXPECT_EQ(query.Tag(), u"nota");
  query.Tag(u"otra");
  EXPECT_EQ(query.Tag(), u"otra");
}

}  // namespace
}  // namespace qvr::tests
