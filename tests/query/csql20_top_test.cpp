// The limit of rows, written after the query was created.
#include "query/query_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using Csql20TopTest = QueryTest;

constexpr TextView kRest = u"  FROM Clientes     ";

// A query with this limit from its beginning, then with each of these, one after the other.
struct TopRow {
  const char* name;
  bool distinct;
  std::int32_t first;
  std::vector<std::int32_t> next;
  std::int32_t top;
  TextView select;  // of Jet and SQL Server
};

const TopRow kTopSequenceRows[] = {
    {"comes", false, 0, {5}, 5, u"SELECT  TOP 5 Nombre"},
    {"comes behind DISTINCT", true, 0, {5}, 5, u"SELECT DISTINCT  TOP 5 Nombre"},
    {"changes", false, 5, {50}, 50, u"SELECT  TOP 50 Nombre"},
    {"changes behind DISTINCT", true, 5, {INT32_MAX}, INT32_MAX, u"SELECT DISTINCT  TOP 2147483647 Nombre"},
    {"comes and goes", false, 0, {5, 0}, 0, u"SELECT  Nombre"},
    {"goes behind DISTINCT", true, 5, {0}, 0, u"SELECT DISTINCT  Nombre"},
    {"goes, comes and goes", false, 5, {0, 5, 0}, 0, u"SELECT   Nombre"},
    {"goes and comes again", false, 5, {0, 7}, 7, u"SELECT  TOP 7  Nombre"},
    {"stays the same", false, 5, {5}, 5, u"SELECT  TOP 5 Nombre"},
    {"stays without a smaller one", false, 5, {-1}, 5, u"SELECT  TOP 5 Nombre"},
    {"below zero is none", false, 0, {-1}, 0, u"SELECT Nombre"},
    {"none stays none", false, 0, {0}, 0, u"SELECT Nombre"},
    {"below zero stays", false, -3, {5}, -3, u"SELECT Nombre"},
    {"below zero stays without one", false, -3, {0}, -3, u"SELECT Nombre"},
};

using TopSequence = Rows<QueryTest, TopRow>;

TEST_P(TopSequence, EndsInThisSelect) {
  const TopRow& row = GetParam();
  for (const Engine engine : kEngines) {
    SCOPED_TRACE(number_of(engine));
    QueryRequest wanted = plain(engine);
    wanted.UsarDistinct = row.distinct;
    wanted.TOP = row.first;
    cSQL20 query;
    ASSERT_TRUE(query.Crear(wanted));
    for (const std::int32_t top : row.next) query.TOP(top);
    EXPECT_EQ(query.TOP(), row.top);
    const bool written = engine == Engine::Jet || engine == Engine::SqlServer;
    const TextView unlimited = row.distinct ? u"SELECT DISTINCT Nombre" : u"SELECT Nombre";
    EXPECT_EQ(query.SQLOriginal(), join({written ? row.select : unlimited, kRest}));
  }
}

INSTANTIATE_TEST_SUITE_P(, TopSequence, ::testing::ValuesIn(kTopSequenceRows), row_name);

TEST_F(Csql20TopTest, DoesNothingBeforeThereIsAQuery) {
  cSQL20 query;
  query.TOP(5);
  EXPECT_EQ(query.TOP(), 0);
  QueryRequest refused = request(Engine::Jet, u"Nombre");
  refused.TOP = 7;
  EXPECT_FALSE(query.Crear(refused));
  query.TOP(5);
  EXPECT_EQ(query.TOP(), 7);
  EXPECT_EQ(traced(), Traces{u"cSQL20.Crear: 13 ColumnasSELECT is not an array"});
}

TEST_F(Csql20TopTest, OfOracleIsInTheCondition) {
  cSQL20 query;
  ASSERT_TRUE(query.Crear(plain(Engine::Oracle)));
  query.TOP(5);
  EXPECT_EQ(query.SQL(), u"SELECT Nombre  FROM Clientes  WHERE  (RowNum<=5)    ");
  query.TOP(6);
  EXPECT_EQ(query.SQL(), u"SELECT Nombre  FROM Clientes  WHERE  (RowNum<=6)    ");
  EXPECT_EQ(query.SQLOriginal(), u"SELECT Nombre  FROM Clientes     ");
  query.TOP(0);
  EXPECT_EQ(query.SQL(), u"SELECT Nombre  FROM Clientes     ");
}

// What its author wrote into the original condition changes along, in any case and only as this very text; it never
// goes, and neither changes what was adopted from the current condition.
TEST_F(Csql20TopTest, ChangesALimitInTheOriginalCondition) {
  for (const Engine engine : kEngines) {
    SCOPED_TRACE(number_of(engine));
    QueryRequest wanted = plain(engine);
    wanted.TOP = 5;
    wanted.CondicionWHEREInicial =
        u"a=1 And RowNum<=5 And b<=5 And (ROWNUM<=5) Or rownum<=5 Or ROWNUM<=55 Or ROWNUM<=5";
    cSQL20 query;
    ASSERT_TRUE(query.Crear(wanted));
    query.AmpliarCondicionWhere(u" ROWNUM<=5 ", u"");
    query.TOP(7);
    constexpr TextView kChanged =
        u"WHERE a=1 And ROWNUM<=7 And b<=5 And (ROWNUM<=5) Or ROWNUM<=7 Or ROWNUM<=55 Or "
        u"ROWNUM<=5";
    const Text limit = engine == Engine::Oracle ? u" And (RowNum<=7) " : u"";
    EXPECT_NE(query.SQLOriginalSinOrden().find(join({u"  ", kChanged, u"  "})), Text::npos);
    EXPECT_EQ(query.ParteWhere(false), join({kChanged, u" And ( ROWNUM<=5 )", limit}));
    query.TOP(0);
    EXPECT_EQ(query.ParteWhere(false), join({kChanged, u" And ( ROWNUM<=5 )"}));
    query.TOP(5);
    query.TOP(6);
    EXPECT_NE(query.SQLOriginalSinOrden().find(kChanged), Text::npos) << "a limit of 7 is not one of 5";
  }
}

TEST_F(Csql20TopTest, AnAdoptedLimitStays) {
  QueryRequest wanted = plain(Engine::Oracle);
  wanted.TOP = 5;
  cSQL20 query;
  ASSERT_TRUE(query.Crear(wanted));
  query.AdoptaComoOriginal(true, false, false);
  EXPECT_EQ(query.SQLOriginalSinOrden(), u"SELECT Nombre  FROM Clientes  WHERE  (RowNum<=5)   ");
  query.TOP(7);
  EXPECT_EQ(query.ParteWhere(true), u" (RowNum<=5)  And (RowNum<=7) ");
  query.TOP(0);
  EXPECT_EQ(query.ParteWhere(true), u" (RowNum<=5) ");
}

// Every such text of the select list is a limit to it.
TEST_F(Csql20TopTest, ChangesEachLimitInTheSelectList) {
  const Value columns = list({u"a", u"T", u"(Select top 5 b From c)", u"N>b", u"' TOP 55 '", u"T"});
  QueryRequest wanted = request(Engine::SqlServer, columns);
  wanted.TOP = 5;
  cSQL20 query;
  ASSERT_TRUE(query.Crear(wanted));
  query.TOP(6);
  EXPECT_EQ(query.SQLOriginal(), join({u"SELECT  TOP 6 a, (Select TOP 6 b From c) As [b], ' TOP 55 '", kRest}));
  query.TOP(0);
  EXPECT_EQ(query.SQLOriginal(), join({u"SELECT  a, (Select b From c) As [b], ' TOP 55 '", kRest}));
  EXPECT_EQ(query.ExpresionOriginal(u"b"), u"(Select top 5 b From c)");
}

// Only in the library's own spelling.
TEST_F(Csql20TopTest, RemovesNoLimitInOtherLettersFromTheSelectList) {
  const Value columns = list({u"(Select top 5 b From c)", u"N>b", u"(Select Top 5 d From e)", u"N>d",
                              u"(Select TOP 5 f From g)", u"N>f", u"' TOP 55 '", u"T"});
  for (const Engine engine : {Engine::Jet, Engine::SqlServer}) {
    QueryRequest wanted = request(engine, columns);
    wanted.TOP = 5;
    cSQL20 query;
    ASSERT_TRUE(query.Crear(wanted));
    query.TOP(0);
    EXPECT_EQ(query.TOP(), 0);
    EXPECT_EQ(query.SQLOriginal(), join({u"SELECT  (Select top 5 b From c) As [b], (Select Top 5 d From e) As [d], "
                                         u"(Select f From g) As [f], ' TOP 55 '",
                                         kRest}));
  }
}

TEST_F(Csql20TopTest, KeepsTheSelectListInItsPlaceWhenLimitsGo) {
  QueryRequest wanted = request(Engine::SqlServer, list({u"(Select top 5 b From c)", u"N>b"}));
  wanted.TOP = 5;
  cSQL20 query, copy;
  ASSERT_TRUE(query.Crear(wanted));
  query.TOP(0);
  ASSERT_TRUE(copy.CrearDesdeTextoDefinicion(query.TextoDefinicion()));
  EXPECT_EQ(copy.SQL(), query.SQL());
}

TEST_F(Csql20TopTest, FollowsAnotherEngine) {
  cSQL20 query;
  ASSERT_TRUE(query.Crear(plain(Engine::Oracle)));
  query.MotorBD(Engine::SqlServer);
  EXPECT_EQ(query.SQLOriginal(), u"SELECT Nombre  FROM Clientes     ");
  query.TOP(5);
  EXPECT_EQ(query.SQL(), u"SELECT  TOP 5 Nombre  FROM Clientes     ");
  query.MotorBD(Engine::Oracle);
  EXPECT_EQ(query.SQL(), u"SELECT  TOP 5 Nombre  FROM Clientes  WHERE  (RowNum<=5)    ");
  query.TOP(4);
  EXPECT_EQ(query.SQL(), u"SELECT  TOP 4 Nombre  FROM Clientes  WHERE  (RowNum<=4)    ");
}

}  // namespace
}  // namespace qvr::tests
