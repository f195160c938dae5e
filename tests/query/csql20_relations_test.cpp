// Relations between tables: joins for Jet and SQL Server, conditions for Oracle.
#include "query/joins.h"
#include "query/query_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using Csql20RelationsTest = QueryTest;

QueryRequest related(Engine engine, Text tables, Value relations, Text where = {}) {
  QueryRequest wanted = request(engine, list({u"a", u"T"}), std::move(tables));
  wanted.RelacionTablas = std::move(relations);
  wanted.CondicionWHEREInicial = std::move(where);
  return wanted;
}

struct JoinsRow {
  const char* name;
  Text tables;
  Value relations;
  TextView from;
};
const JoinsRow kJoinsRows[] = {
    {"inner", u"T1, T2", list({u"T1.a", u"T2.b", u"I"}), u"T1 INNER JOIN T2 ON T1.a=T2.b"},
    {"left, lower case", u"T1, T2", list({u"T1.a", u"T2.b", u"l"}), u"T1 LEFT JOIN T2 ON T1.a=T2.b"},
    {"right, lower bound 1", u"T1, T2", list({u"T1.a", u"T2.b", u"R"}, 1), u"T1 RIGHT JOIN T2 ON T1.a=T2.b"},
    {"a further equality", u"T1, T2", list({u"T1.a", u"T2.b", u"I", u"T1.c", u"T2.d", u"A"}),
     u"T1 INNER JOIN T2 ON T1.a=T2.b AND T1.c=T2.d"},
    {"a further equality, lower case", u"T1,T2", list({u"T1.a", u"T2.b", u"L", u"T1.c", u"T2.d", u"a"}, -9),
     u"T1 LEFT JOIN T2 ON T1.a=T2.b AND T1.c=T2.d"},
    {"three tables with aliases", u"Clientes C, Pedidos P, Lineas L",
     list({u"C.Id", u"P.IdCli", u"I", u"P.Id", u"L.IdPed", u"L"}),
     u"(Clientes C INNER JOIN Pedidos P ON C.Id=P.IdCli) LEFT JOIN Lineas L ON P.Id=L.IdPed"},
    {"four tables and a further equality", u"A,B,C,D",
     list({u"A.x", u"B.x", u"I", u"A.y", u"B.y", u"A", u"B.x", u"C.x", u"R", u"C.x", u"D.x", u"L"}),
     u"((A INNER JOIN B ON A.x=B.x AND A.y=B.y) RIGHT JOIN C ON B.x=C.x) LEFT JOIN D ON C.x=D.x"},
    {"an equality without a join", u"T1, T2", list({u"T1.a", u"T2.b", u"A"}), u" AND T1.a=T2.b"},
    {"a join behind an equality", u"T1, T2", list({u"T1.a", u"T2.b", u"A", u"T1.c", u"T2.d", u"I"}),
     u"( AND T1.a=T2.b) INNER JOIN T2 ON T1.c=T2.d"},
    {"another letter", u"T1, T2", list({u"T1.a", u"T2.b", u"X"}), u"T1T2 ON T1.a=T2.b"},
    {"no letter", u"T1, T2", list({u"T1.a", u"T2.b", Empty{}}), u"T1T2 ON T1.a=T2.b"},
    {"a letter and a blank", u"T1, T2", list({u"T1.a", u"T2.b", u"I "}), u"T1T2 ON T1.a=T2.b"},
    {"fields without a table", u"T1, T2", list({u"a", u"b", u"I"}), u" INNER JOIN  ON a=b"},
    {"a table that no relation names", u"T1, T2, T3", list({u"T1.a", u"T2.b", u"I"}), u"T1 INNER JOIN T2 ON T1.a=T2.b"},
    {"tables that are not in the list", u"T1", list({u"X.a", u"Y.b", u"I"}), u"X INNER JOIN Y ON X.a=Y.b"},
    {"no relations", u"T1, T2", list({}), u""},
};

using Joins = Rows<QueryTest, JoinsRow>;

TEST_P(Joins, AreWritten) {
  const JoinsRow& row = GetParam();
  for (const Engine engine : {Engine::Jet, Engine::SqlServer}) {
    cSQL20 query;
    ASSERT_TRUE(query.Crear(related(engine, row.tables, row.relations, u"a>1")));
    EXPECT_EQ(query.SQLOriginal(), join({u"SELECT a  FROM ", row.from, u"  WHERE a>1   "}));
  }
}

INSTANTIATE_TEST_SUITE_P(, Joins, ::testing::ValuesIn(kJoinsRows), row_name);

struct TableOfAFieldRow {
  const char* name;
  TextView tables, field, table;
};
constexpr TableOfAFieldRow kTableOfAFieldRows[] = {
    {"by its alias", u"Clientes C", u"C.Id", u"Clientes C"},
    {"by its alias in another case", u" Clientes C ,Pedidos P", u"p.Id", u"Pedidos P"},
    {"by its alias behind As", u"Clientes As C", u"C.Id", u"Clientes As C"},
    {"by its name", u"Clientes", u"CLIENTES.Id", u"CLIENTES"},
    {"by its name between blanks", u"Clientes", u" Clientes .Id", u"Clientes"},
    {"by the whole alias", u"CC, Clientes C", u"C.Id", u"Clientes C"},
    {"by its name rather than by an alias before", u"Clientes C, C", u"C.Id", u"C"},
    {"the first of two with one alias", u"Clientes C, Copia C", u"C.Id", u"Clientes C"},
    {"a tab parts no alias", u"Clientes\tC", u"C.Id", u"C"},
    {"by an alias beyond ASCII", u"A\u00f1os \u00f1", u"\u00d1.Id", u"A\u00f1os \u00f1"},
    {"with its owner, by its alias", u"dbo.Clientes C", u"C.Id", u"dbo.Clientes C"},
    {"with its owner, by its name", u"dbo.Clientes", u"dbo.Clientes.Id", u"dbo.Clientes"},
    {"unknown, as the field has it", u"Clientes C", u"D.Id", u"D"},
    {"in no list, as the field has it", u"", u"D.Id", u"D"},
    {"of a field without a point", u"Clientes C", u"Id", u""},
    {"of a field with nothing before the point", u"Clientes C", u".Id", u""},
    {"of an empty field", u"Clientes C", u"", u""},
    {"of a point", u"Clientes C", u".", u""},
    {"of nothing behind the point", u"Clientes C", u"C.", u"Clientes C"},
    {"of a blank before the point", u"Clientes C", u" .Id", u""},
};

using TableOfAField = Rows<::testing::Test, TableOfAFieldRow>;

TEST_P(TableOfAField, IsFound) {
  const TableOfAFieldRow& row = GetParam();
  EXPECT_EQ(query::TablaDeCampo(row.tables, row.field), row.table);
}

INSTANTIATE_TEST_SUITE_P(, TableOfAField, ::testing::ValuesIn(kTableOfAFieldRows), row_name);

TEST_F(Csql20RelationsTest, AreConditionsForOracle) {
  struct Row {
    const char* name;
    Value relations;
    Text where;
    TextView condition;
  };
  const Row kRows[] = {
      {"inner", list({u"C.Id", u"P.IdCli", u"I"}), u"", u"WHERE  (C.Id=P.IdCli) "},
      {"inner with a condition", list({u"C.Id", u"P.IdCli", u"I"}), u"a=1 Or b=2",
       u"WHERE  (C.Id=P.IdCli)  And (a=1 Or b=2)"},
      {"all kinds", list({u"a", u"b", u"L", u"c", u"d", u"r", u"e", u"f", u"A"}, 1), u" ",
       u"WHERE  (a=b(+) And c(+)=d And e=f)  And ( )"},
      {"no array", Empty{}, u"a=1", u"WHERE a=1"},
      {"a text", u"C.Id", u"", u""},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    cSQL20 query;
    ASSERT_TRUE(query.Crear(related(Engine::Oracle, u" Clientes C,Pedidos P", row.relations, row.where)));
    EXPECT_EQ(query.SQLOriginal(), join({u"SELECT a  FROM  Clientes C,Pedidos P  ", row.condition, u"   "}));
  }
}

TEST_F(Csql20RelationsTest, WithoutAnArrayTheTablesStandAsGiven) {
  for (const Engine engine : kEngines) {
    for (const Value& none : {Value(Missing{}), Value(Empty{}), Value(u"a"), Value(Null{}), object()}) {
      cSQL20 query;
      ASSERT_TRUE(query.Crear(related(engine, u"T1 , T2", none)));
      EXPECT_EQ(query.SQLOriginal(), u"SELECT a  FROM T1 , T2     ");
    }
  }
}

// There is no condition for it, so that only what follows it is left.
TEST_F(Csql20RelationsTest, WithoutAnEngineTheyLeaveATornCondition) {
  cSQL20 query;
  ASSERT_TRUE(query.Crear(related(kNoEngine, u"T1, T2", list({u"T1.a", u"T2.b", u"I"}), u"a=1")));
  EXPECT_EQ(query.SQLOriginal(), u"SELECT a  FROM T1, T2  WHERE  And (a=1)   ");
  ASSERT_TRUE(query.Crear(related(kNoEngine, u"T1, T2", list({u"T1.a", u"T2.b", u"I"}))));
  EXPECT_EQ(query.SQLOriginal(), u"SELECT a  FROM T1, T2     ");
}

TEST_F(Csql20RelationsTest, OracleTellsOfALetterThatItHasNot) {
  cSQL20 query;
  const auto create = [&] { return query.Crear(related(Engine::Oracle, u"T1, T2", list({u"a", u"b", u"x"}), u"a=1")); };
  EXPECT_TRUE(showing({u"Relaci\u00f3n incorrecta en CondicionWhereRelacionTablas: X"}, create));
  EXPECT_EQ(query.SQLOriginal(), u"SELECT a  FROM T1, T2  WHERE  And (a=1)   ");
}

struct TornJoinsRow {
  const char* name;
  Value relations;
  std::int32_t number;
};
const TornJoinsRow kTornJoinsRows[] = {
    {"two elements", list({u"T1.a", u"T2.b"}), 9},
    {"four elements", list({u"T1.a", u"T2.b", u"I", u"T1.c"}), 9},
    {"two dimensions", square({u"T1.a", u"T2.b", u"I"}), 9},
    {"an array without bounds", shapeless(), 9},
    {"an object", list({object(), u"T2.b", u"I"}), 13},
    {"Null", list({u"T1.a", Null{}, u"I"}), 94},
    {"an array", list({u"T1.a", u"T2.b", list({u"I"})}), 13},
};

using TornJoins = Rows<QueryTest, TornJoinsRow>;

TEST_P(TornJoins, FailInCrear) {
  const TornJoinsRow& row = GetParam();
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    SCOPED_TRACE(number_of(engine));
    cSQL20 query;
    const auto create = [&] { return query.Crear(related(engine, u"T1, T2", row.relations)); };
    EXPECT_FALSE(showing({failed(u"Crear", row.number)}, create));
    EXPECT_FALSE(query.Creado());
  }
  EXPECT_EQ(traced(), Traces(3, trace_of(u"cSQL20.Crear", row.number)));
}

INSTANTIATE_TEST_SUITE_P(, TornJoins, ::testing::ValuesIn(kTornJoinsRows), row_name);

// Oracle has no empty condition.
TEST_F(Csql20RelationsTest, FailForOracleWhenThereAreNone) {
  cSQL20 query;
  const auto create = [&] { return query.Crear(related(Engine::Oracle, u"T1, T2", list({}))); };
  EXPECT_FALSE(showing({failed(u"Crear", 5)}, create));
  EXPECT_EQ(traced(), Traces{u"cSQL20.Crear: 5 Invalid procedure call or argument"});
}

}  // namespace
}  // namespace qvr::tests
