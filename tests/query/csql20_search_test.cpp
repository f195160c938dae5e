// A search on a query: which clause it narrows, and what the query tells of it.
#include "query/csql20.h"
#include "query/usql20.h"

#include <gtest/gtest.h>

#include "dialect/dialect_fixture.h"
#include "query/search/search_fixture.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

QueryRequest request_for(Engine engine) {
  QueryRequest request;
  request.MotorBD = engine;
  request.ColumnasSELECT = list({Text(u"C.Nombre"), Text(u"T+"), Text(u"C.Alta"), Text(u"F+"), Text(u"Sum(L.Imp)"),
                                 Text(u"N>Total"), Text(u"C.Foto"), Text(u"Z+"), Text(u"C.Otro"), Text()});
  request.TablasFROM = u"Clientes C";
  request.NumColumnasGROUPBY = 2;
  return request;
}

class Search : public ::testing::Test {
 protected:
  Search() {
    speak(thread, kSpanish);
    query.Crear(request_for(Engine::Jet));
  }
  bool search(TextView field, TextView text, TextView criterion = {}) {
    return query.InterpretarBusqueda(field, text, criterion);
  }
  void expect_box(TextView procedure, TextView error) {
    EXPECT_EQ(thread.log.take(),
              Lines{"Box OK: " + to_utf8(join({u"Objeto: cSQL20\r\nM\u00e9todo: ", procedure, u"\r\nError ", error}))});
  }
  void answer_box() { thread.boxes.answer(BoxAnswer::Ok); }

  TestThread thread;
  cSQL20 query;
};

TEST_F(Search, NarrowsTheRowsByAGroupedColumn) {
  EXPECT_TRUE(search(u"nombre", u"ana"));
  EXPECT_EQ(query.ParteWhere(true), u"(C.Nombre LIKE '%ana%')");
  EXPECT_EQ(query.ParteHaving(true), u"");
  EXPECT_EQ(query.CriterioActual(), u"Nombre es como '*ana*'");
}

TEST_F(Search, NarrowsTheGroupsByAnyOtherColumn) {
  EXPECT_TRUE(search(u"Total", u">1000"));
  EXPECT_EQ(query.ParteHaving(true), u"(Sum(L.Imp)> 1000)");
  EXPECT_EQ(query.ParteWhere(true), u"");
}

TEST_F(Search, NarrowsTheRowsOfAQueryWithoutGroups) {
  QueryRequest request = request_for(Engine::Jet);
  request.NumColumnasGROUPBY = 0;
  query.Crear(request);
  EXPECT_TRUE(search(u"Total", u">1000"));
  EXPECT_EQ(query.ParteWhere(true), u"(Sum(L.Imp)> 1000)");
}

TEST_F(Search, AddsOneConditionAndOneCriterion) {
  EXPECT_TRUE(search(u"Nombre", u"ana; bea", u"Cliente"));
  EXPECT_TRUE(search(u"Alta", u"2011"));
  EXPECT_EQ(query.ParteWhere(true),
            u"(C.Nombre LIKE '%ana%' Or C.Nombre LIKE '%bea%') and (C.Alta>=#2011-01-01# And C.Alta<#2012-01-01#)");
  EXPECT_EQ(query.CriterioActual(), u"Cliente es como '*ana*'; es como '*bea*' y Alta >= 01/01/2011 y <= 31/12/2011");
}

TEST_F(Search, IsNotMadeTwice) {
  EXPECT_TRUE(search(u"Nombre", u"ana"));
  const Text statement = query.SQL(), criterion = query.CriterioActual();
  EXPECT_FALSE(search(u"Nombre", u"ana"));
  EXPECT_FALSE(search(u"Nombre", u"ANA"));
  EXPECT_EQ(query.SQL(), statement);
  EXPECT_EQ(query.CriterioActual(), criterion);
}

// Two alternatives and the last end of a range are one text, but "Zoe" is within the one only.
TEST_F(Search, IsNotTakenForAPartOfAnEarlierOne) {
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    query.Crear(request_for(engine));
    EXPECT_TRUE(search(u"Nombre", u"a..C; z"));
    EXPECT_TRUE(search(u"Nombre", u"<=c; C*"));
    EXPECT_FALSE(search(u"Nombre", u"<=C; C*"));
    EXPECT_EQ(query.CriterioActual(), u"Nombre >= a y <= C*; es como '*z*' y Nombre <= c; es como 'C*'");
  }
}

TEST_F(Search, ThatIsNoneChangesNothing) {
  const Text statement = query.SQL();
  for (const TextView text : {u"", u"   ", u";"}) EXPECT_FALSE(search(u"Nombre", text));
  EXPECT_FALSE(search(u"Total", u"abc"));
  EXPECT_FALSE(search(u"Alta", u"31/02/2011"));
  EXPECT_FALSE(search(u"Foto", u"x")) << "a type that is not searched";
  EXPECT_EQ(query.SQL(), statement);
  EXPECT_EQ(query.CriterioActual(), u"");
}

TEST_F(Search, OfAnUnknownColumnIsReportedOnce) {
  answer_box();
  EXPECT_FALSE(search(u"Nadie", u"ana"));
  expect_box(u"TipoCampo(Nadie)", u"5: Invalid procedure call or argument");
  answer_box();
  EXPECT_FALSE(search(u"C.Otro", u"ana")) << "a column without a type";
  expect_box(u"TipoCampo(C.Otro)", u"5: Invalid procedure call or argument");
  EXPECT_EQ(traced(), Traces(2, u"cSQL20.TipoCampo: 5 Invalid procedure call or argument"));
}

TEST_F(Search, BeforeThereIsAQueryIsFalse) {
  cSQL20 fresh;
  EXPECT_FALSE(fresh.InterpretarBusqueda(u"Nombre", u"ana", u""));
  EXPECT_EQ(thread.log.take(), Lines());
}

TEST_F(Search, SpeaksTheLanguageInForce) {
  query.Idioma(1);
  EXPECT_TRUE(search(u"Nombre", u"ana bea"));
  EXPECT_EQ(query.CriterioActual(), u"Nombre is like '*ana*' and is like '*bea*'");
}

TEST_F(Search, OfAUnionAsksAllItsMembers) {
  uSQL20 both;
  QueryRequest other = request_for(Engine::Oracle);
  other.ColumnasSELECT = list({Text(u"P.Nombre"), Text(u"T+")});
  other.NumColumnasGROUPBY = 0;
  ASSERT_TRUE(both.Crear(request_for(Engine::Jet)) && both.Crear(other));
  EXPECT_TRUE(both.InterpretarBusqueda(u"Nombre", u"ana", u""));
  EXPECT_NE(both.SQL().find(u"(C.Nombre LIKE '%ana%')"), Text::npos);
  EXPECT_NE(both.SQL().find(u"( UPPER(P.Nombre) LIKE UPPER('%ana%'))"), Text::npos);
  answer_box();
  EXPECT_FALSE(both.InterpretarBusqueda(u"Total", u">5", u"")) << "the second member has no such column";
  EXPECT_NE(both.SQL().find(u"(Sum(L.Imp)> 5)"), Text::npos);
  thread.log.take();
  EXPECT_EQ(traced(), Traces{u"cSQL20.TipoCampo: 5 Invalid procedure call or argument"});
}

}  // namespace
}  // namespace qvr::tests
