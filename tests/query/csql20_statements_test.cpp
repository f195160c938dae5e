// The statements and clauses that a query gives, blank by blank.
#include "query/query_fixture.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using Csql20StatementsTest = QueryTest;

// The four statements, one beside the other.
struct Statements {
  Text now, now_unordered, original, original_unordered;
  bool operator==(const Statements&) const = default;
};

Statements statements_of(const cSQL20& query) {
  return {query.SQL(), query.SQLSinOrden(), query.SQLOriginal(), query.SQLOriginalSinOrden()};
}

void PrintTo(const Statements& s, std::ostream* out) {
  for (const Text* text : {&s.now, &s.now_unordered, &s.original, &s.original_unordered}) {
    *out << "\n    \"" << to_utf8(*text) << '"';
  }
}

constexpr TextView kJoined =
    u"SELECT C.Nombre, C.Alta, C.Notas, Sum(P.Imp) As [Total]  FROM Clientes C INNER JOIN "
    u"Pedidos P ON C.Id=P.IdCli  ";
constexpr TextView kGrouped = u" GROUP BY C.Nombre, C.Alta, C.Notas ";

TEST_F(Csql20StatementsTest, AreBlanksBeforeThereIsAQuery) {
  const cSQL20 query;
  EXPECT_EQ(statements_of(query), (Statements{u"     ", u"    ", u"     ", u"    "}));
  EXPECT_EQ(query.ParteWhere(false) + query.ParteHaving(false) + query.ParteOrder(false), u"");
}

TEST_F(Csql20StatementsTest, AbsentClausesLeaveTheirBlanks) {
  cSQL20 query;
  ASSERT_TRUE(query.Crear(plain(Engine::SqlServer)));
  const Text ordered = u"SELECT Nombre  FROM Clientes     ", unordered = u"SELECT Nombre  FROM Clientes    ";
  EXPECT_EQ(statements_of(query), (Statements{ordered, unordered, ordered, unordered}));
}

TEST_F(Csql20StatementsTest, HoldEveryClause) {
  for (const Engine engine : {Engine::Jet, Engine::SqlServer}) {
    cSQL20 query;
    ASSERT_TRUE(query.Crear(full(engine)));
    const Text unordered = join({kJoined, u"WHERE C.Baja=0", kGrouped, u"HAVING Sum(P.Imp)>0"});
    const Text ordered = unordered + u" ORDER BY C.Nombre";
    EXPECT_EQ(statements_of(query), (Statements{ordered, unordered, ordered, unordered}));

    EXPECT_TRUE(query.AmpliarCondicionWhere(u"C.Pais='ES'", u""));
    EXPECT_TRUE(query.AmpliarCondicionHaving(u"Sum(P.Imp)<9", u""));
    EXPECT_FALSE(query.AmpliarOrden(2));
    const Text narrowed = join(
        {kJoined, u"WHERE C.Baja=0 And (C.Pais='ES')", kGrouped, u"HAVING Sum(P.Imp)>0 and (Sum(P.Imp)<9)"});
    EXPECT_EQ(statements_of(query), (Statements{narrowed + u" ORDER BY 2 DESC", narrowed, ordered, unordered}));
  }
}

TEST_F(Csql20StatementsTest, OracleHasItsLimitInTheCurrentConditionOnly) {
  QueryRequest wanted = full(Engine::Oracle);
  wanted.TOP = 10;
  cSQL20 query;
  ASSERT_TRUE(query.Crear(wanted));
  constexpr TextView kSelect = u"SELECT C.Nombre, C.Alta, C.Notas, Sum(P.Imp) \"Total\"  FROM Clientes C, Pedidos P  ";
  constexpr TextView kWhere = u"WHERE  (C.Id=P.IdCli)  And (C.Baja=0)";
  const Text original = join({kSelect, kWhere, kGrouped, u"HAVING Sum(P.Imp)>0"});
  const Text now = join({kSelect, kWhere, u" And (RowNum<=10) ", kGrouped, u"HAVING Sum(P.Imp)>0"});
  EXPECT_EQ(statements_of(query),
            (Statements{now + u" ORDER BY C.Nombre", now, original + u" ORDER BY C.Nombre", original}));
}

// Blank is not empty: a clause of blanks is none in the current statement, but one in the original.
TEST_F(Csql20StatementsTest, ABlankClauseStaysInTheOriginal) {
  QueryRequest wanted = plain(Engine::Jet);
  wanted.CondicionWHEREInicial = wanted.CondicionHAVINGInicial = wanted.TextoORDERBYInicial = u"  ";
  cSQL20 query;
  ASSERT_TRUE(query.Crear(wanted));
  EXPECT_EQ(query.SQL(), u"SELECT Nombre  FROM Clientes     ");
  EXPECT_EQ(query.SQLOriginal(), u"SELECT Nombre  FROM Clientes  WHERE     HAVING    ORDER BY   ");
}

struct ParteWhereRow {
  const char* name;
  Text original, added;
  std::int32_t top;
  TextView condition, oracle_condition;
};
const ParteWhereRow kParteWhereRows[] = {
    {"original and added", u"a=1", u"b=2", 0, u"a=1 And (b=2)", u"a=1 And (b=2)"},
    {"original, added and limit", u"a=1", u"b=2", 5, u"a=1 And (b=2)", u"a=1 And (b=2) And (RowNum<=5) "},
    {"original and limit", u"a=1", u"", 5, u"a=1", u"a=1 And (RowNum<=5) "},
    {"original with blanks", u" a=1 ", u"", 0, u" a=1 ", u" a=1 "},
    {"added and limit", u"", u"b=2", 5, u"(b=2)", u"(b=2) And (RowNum<=5) "},
    {"blank original, added and limit", u"  ", u" b=2", 5, u"( b=2)", u"( b=2) And (RowNum<=5) "},
    {"limit", u"", u"", 5, u"", u" (RowNum<=5) "},
    {"blank original and limit", u"   ", u"", 5, u"", u" (RowNum<=5) "},
    {"nothing", u"", u"", 0, u"", u""},
    {"a tab is not blank", u"\t", u"", 0, u"\t", u"\t"},
    {"original and a limit below zero", u"a=1", u"", -5, u"a=1", u"a=1"},
};

using ParteWhere = Rows<QueryTest, ParteWhereRow>;

TEST_P(ParteWhere, JoinsWhatThereIs) {
  const ParteWhereRow& row = GetParam();
  for (const Engine engine : kEngines) {
    SCOPED_TRACE(number_of(engine));
    QueryRequest wanted = plain(engine);
    wanted.CondicionWHEREInicial = row.original;
    wanted.TOP = row.top;
    cSQL20 query;
    ASSERT_TRUE(query.Crear(wanted));
    EXPECT_EQ(query.AmpliarCondicionWhere(row.added, u""), !row.added.empty());
    const TextView condition = engine == Engine::Oracle ? row.oracle_condition : row.condition;
    EXPECT_EQ(query.ParteWhere(true), condition);
    EXPECT_EQ(query.ParteWhere(false), condition.empty() ? Text() : join({u"WHERE ", condition}));
  }
}

INSTANTIATE_TEST_SUITE_P(, ParteWhere, ::testing::ValuesIn(kParteWhereRows), row_name);

TEST_F(Csql20StatementsTest, ParteHavingAndParteOrderHoldWhatThereIs) {
  struct Row {
    Text having, added, order;
    TextView condition, list;
  };
  const Row kRows[] = {
      {u"a=1", u"b=2", u"x", u"a=1 and (b=2)", u"x"},
      {u"a=1", u"", u" x DESC", u"a=1", u" x DESC"},
      {u"", u"b=2", u"", u"(b=2)", u""},
      {u"  ", u"b=2", u"  ", u"(b=2)", u""},
      {u"  ", u"", u"", u"", u""},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(join({row.having, u" / ", row.added})));
    QueryRequest wanted = plain(Engine::Oracle);
    wanted.CondicionHAVINGInicial = row.having;
    wanted.TextoORDERBYInicial = row.order;
    cSQL20 query;
    ASSERT_TRUE(query.Crear(wanted));
    EXPECT_EQ(query.AmpliarCondicionHaving(row.added, u""), !row.added.empty());
    EXPECT_EQ(query.ParteHaving(true), row.condition);
    EXPECT_EQ(query.ParteHaving(false), row.condition.empty() ? Text() : join({u"HAVING ", row.condition}));
    EXPECT_EQ(query.ParteOrder(true), row.list);
    EXPECT_EQ(query.ParteOrder(false), row.list.empty() ? Text() : join({u"ORDER BY ", row.list}));
  }
}

}  // namespace
}  // namespace qvr::tests
