// How `Crear` puts a statement together, and what it does with what it cannot use.
#include "query/query_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;
using Csql20CreateTest = QueryTest;

struct ColumnDescriptorRow {
  const char* name;
  Text expression, descriptor, field, type;
  TextView alias;  // of Jet and SQL Server
  TextView oracle_alias;
};
const ColumnDescriptorRow kColumnDescriptorRows[] = {
    {"the whole expression", u"Cli.Nombre", u"T", u"Cli.Nombre", u"T", u"", u""},
    {"what follows the last point", u"Cli.Nombre", u"T+", u"Nombre", u"T", u"", u""},
    {"what follows the last of two points", u"a.b.Nombre", u"T+", u"Nombre", u"T", u"", u""},
    {"an expression without a point", u"Nombre", u"T+", u"Nombre", u"T", u"", u""},
    {"a plus before other text", u"Cli.Nombre", u"T+x>y", u"Nombre", u"T", u"", u""},
    {"an alias", u"Sum(Importe)", u"N>Total", u"Total", u"N", u" As [Total]", u" \"Total\""},
    {"an alias with blanks", u"Sum(Importe)", u"N> un total", u" un total", u"N", u" As [ un total]",
     u" \" un total\""},
    {"an alias of signs", u"Sum(P.Imp)", u"N>+.>", u"+.>", u"N", u" As [+.>]", u" \"+.>\""},
    {"other text behind the type", u"Cli.Nombre", u"Tx", u"Cli.Nombre", u"T", u"", u""},
    {"a blank behind the type", u"Cli.Nombre", u"T ", u"Cli.Nombre", u"T", u"", u""},
    {"a plus as the type", u"Cli.Nombre", u"+Alias", u"Cli.Nombre", u"+", u"", u""},
    {"a type beyond ASCII", u"Cli.A\u00f1o", u"\u00d1+", u"A\u00f1o", u"\u00d1", u"", u""},
    {"nothing behind the point", u"Cli.", u"T+", u"", u"T", u"", u""},
    {"an empty alias", u"a", u"T>", u"", u"T", u" As []", u" \"\""},
};

using ColumnDescriptor = Rows<QueryTest, ColumnDescriptorRow>;

TEST_P(ColumnDescriptor, NamesTheColumn) {
  const ColumnDescriptorRow& row = GetParam();
  for (const Engine engine : kEngines) {
    SCOPED_TRACE(number_of(engine));
    cSQL20 query;
    ASSERT_TRUE(query.Crear(request(engine, list({row.expression, row.descriptor}))));
    const TextView alias = engine == Engine::Oracle ? row.oracle_alias : engine == kNoEngine ? u"" : row.alias;
    EXPECT_EQ(query.SQLOriginal(), join({u"SELECT ", row.expression, alias, u"  FROM Clientes     "}));
    EXPECT_EQ(query.NumColumna(row.field), 1);
    EXPECT_EQ(query.TipoCampo(row.field), row.type);
    EXPECT_EQ(query.ExpresionOriginal(row.field), row.expression);
  }
}

INSTANTIATE_TEST_SUITE_P(, ColumnDescriptor, ::testing::ValuesIn(kColumnDescriptorRows), row_name);

TEST_F(Csql20CreateTest, AColumnWithoutADescriptorHasNoType) {
  cSQL20 query;
  ASSERT_TRUE(query.Crear(request(Engine::Jet, list({u"Nombre", u"", Empty{}, Empty{}, 5, u"N"}))));
  EXPECT_EQ(query.SQLOriginal(), u"SELECT Nombre, , 5  FROM Clientes     ");
  EXPECT_EQ(query.NumColumna(u"Nombre"), 1);
  EXPECT_EQ(query.NumColumna(u""), 2);
  EXPECT_EQ(query.NumColumna(u"5"), 3);
  EXPECT_EQ(query.ExpresionOriginal(u"nombre"), u"Nombre");
  EXPECT_EQ(showing({failed(u"TipoCampo(nombre)", 5)}, [&] { return query.TipoCampo(u"nombre"); }), u"");
  EXPECT_EQ(traced(), Traces{u"cSQL20.TipoCampo: 5 Invalid procedure call or argument"});
}

TEST_F(Csql20CreateTest, DistinctAndTheLimitStandBeforeTheColumns) {
  struct Row {
    bool distinct;
    std::int32_t top;
    Text jet_and_sql_server, others;
  };
  const Row kRows[] = {
      {false, 0, u"SELECT Nombre", u"SELECT Nombre"},
      {true, 0, u"SELECT DISTINCT Nombre", u"SELECT DISTINCT Nombre"},
      {false, 10, u"SELECT  TOP 10 Nombre", u"SELECT Nombre"},
      {true, 10, u"SELECT DISTINCT  TOP 10 Nombre", u"SELECT DISTINCT Nombre"},
      {true, INT32_MAX, u"SELECT DISTINCT  TOP 2147483647 Nombre", u"SELECT DISTINCT Nombre"},
      {false, -1, u"SELECT Nombre", u"SELECT Nombre"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(row.jet_and_sql_server));
    for (const Engine engine : kEngines) {
      QueryRequest wanted = plain(engine);
      wanted.UsarDistinct = row.distinct;
      wanted.TOP = row.top;
      cSQL20 query;
      ASSERT_TRUE(query.Crear(wanted));
      const bool written = engine == Engine::Jet || engine == Engine::SqlServer;
      EXPECT_EQ(query.SQLOriginal(), (written ? row.jet_and_sql_server : row.others) + u"  FROM Clientes     ");
      EXPECT_EQ(query.TOP(), row.top);
      EXPECT_EQ(query.MotorBD(), engine);
    }
  }
}

TEST_F(Csql20CreateTest, GroupsByTheFirstColumns) {
  struct Row {
    std::int16_t count;
    TextView group;
  };
  constexpr Row kRows[] = {{0, u""},
                           {-1, u""},
                           {1, u"GROUP BY C.Nombre"},
                           {2, u"GROUP BY C.Nombre, Year(C.Alta)"},
                           {3, u"GROUP BY C.Nombre, Year(C.Alta), C.Pais"}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.count);
    QueryRequest wanted = request(Engine::Jet,
                                  list({u"C.Nombre", u"T+", u"Year(C.Alta)", u"N>A", u"C.Pais", u"T+"}, 1));
    wanted.NumColumnasGROUPBY = row.count;
    cSQL20 query;
    ASSERT_TRUE(query.Crear(wanted));
    EXPECT_EQ(query.SQLOriginal(),
              join({u"SELECT C.Nombre, Year(C.Alta) As [A], C.Pais  FROM Clientes   ", row.group, u"  "}));
  }
}

TEST_F(Csql20CreateTest, MoreGroupsThanColumnsFail) {
  QueryRequest wanted = plain(Engine::Jet);
  wanted.NumColumnasGROUPBY = 2;
  cSQL20 query;
  EXPECT_FALSE(showing({failed(u"Crear", 9)}, [&] { return query.Crear(wanted); }));
  EXPECT_FALSE(query.Creado());
  EXPECT_EQ(query.NumColumnas(), 0);
  EXPECT_EQ(query.NumColumna(u"nombre"), 1) << "the columns are known, whatever became of the rest";
  EXPECT_EQ(query.TipoCampo(u"nombre"), u"");
  EXPECT_EQ(query.ExpresionOriginal(u"nombre"), u"");
  EXPECT_EQ(traced(), Traces{u"cSQL20.Crear: 9 Subscript out of range"});
}

// Without a box: nothing failed, there is only nothing to make a query from.
TEST_F(Csql20CreateTest, RefusesColumnsThatAreNoArray) {
  for (const Value& columns : {Value(u"Nombre"), Value(Empty{}), Value(Missing{}), Value(Null{}), Value(5), object()}) {
    QueryRequest wanted = request(Engine::Oracle, columns);
    wanted.TOP = 7;
    wanted.Idioma = 3;
    cSQL20 query;
    EXPECT_FALSE(query.Crear(wanted));
    EXPECT_FALSE(query.Creado());
    EXPECT_EQ(query.MotorBD(), Engine::Oracle);
    EXPECT_EQ(query.TOP(), 7);
    EXPECT_EQ(query.Idioma(), 3);
    EXPECT_EQ(query.TextoDefinicion(), u"");
  }
  EXPECT_EQ(traced(), Traces(6, u"cSQL20.Crear: 13 ColumnasSELECT is not an array"));
}

struct UnreadableColumnsRow {
  const char* name;
  Value columns;
  std::int32_t number;
};
const UnreadableColumnsRow kUnreadableColumnsRows[] = {
    {"a column without descriptor at the end", list({u"a", u"T", u"b"}), 9},
    {"the same with a lower bound", list({u"a", u"T", u"b"}, -4), 9},
    {"one element", list({u"a"}), 9},
    {"two dimensions", square({u"a", u"T"}), 9},
    {"an array without bounds", shapeless(), 9},
    {"an object as expression", list({object(), u"T"}), 13},
    {"an object as descriptor", list({u"a", object()}), 13},
    {"Null as expression", list({Null{}, u"T"}), 94},
    {"Null as descriptor", list({u"a", u"T", u"b", Null{}}), 94},
    {"an array as expression", list({list({u"a"}), u"T"}), 13},
    {"a missing descriptor", list({u"a", Missing{}}), 13},
};

using UnreadableColumns = Rows<QueryTest, UnreadableColumnsRow>;

TEST_P(UnreadableColumns, AreTold) {
  const UnreadableColumnsRow& row = GetParam();
  for (const Engine engine : kEngines) {
    cSQL20 query;
    const auto create = [&] { return query.Crear(request(engine, row.columns)); };
    EXPECT_FALSE(showing({failed(u"ConstruirSelect", row.number)}, create));
    EXPECT_FALSE(query.Creado());
  }
  EXPECT_EQ(traced(), Traces(4, trace_of(u"cSQL20.Crear", row.number)));
}

INSTANTIATE_TEST_SUITE_P(, UnreadableColumns, ::testing::ValuesIn(kUnreadableColumnsRows), row_name);

TEST_F(Csql20CreateTest, WithoutColumnsTheSelectIsCut) {
  cSQL20 query;
  EXPECT_TRUE(query.Crear(request(Engine::Jet, list({}))));
  EXPECT_TRUE(query.Creado());
  EXPECT_EQ(query.NumColumnas(), 0);
  EXPECT_EQ(query.SQLOriginal(), u"SELEC  FROM Clientes     ");
}

TEST_F(Csql20CreateTest, AnyLowerBoundWillDo) {
  for (const std::int32_t lower : {-7, 0, 1, 100, INT32_MAX - 4}) {
    SCOPED_TRACE(lower);
    cSQL20 query;
    ASSERT_TRUE(query.Crear(request(Engine::Jet, list({u"a", u"T", u"b", u"N"}, lower))));
    EXPECT_EQ(query.SQLOriginal(), u"SELECT a, b  FROM Clientes     ");
  }
}

TEST_F(Csql20CreateTest, BeginsAnewEachTime) {
  cSQL20 query;
  QueryRequest first = full(Engine::SqlServer);
  first.TOP = 5;
  first.UsarDistinct = true;
  first.Idioma = 3;
  ASSERT_TRUE(query.Crear(first));
  query.Tag(u"mi nota");
  EXPECT_TRUE(query.AmpliarCondicionWhere(u"a=1", u"uno"));
  EXPECT_TRUE(query.AmpliarCondicionHaving(u"b=2", u"dos"));
  EXPECT_FALSE(query.AmpliarOrden(1));
  ASSERT_TRUE(query.Crear(plain(Engine::Jet)));
  EXPECT_EQ(query.SQL(), u"SELECT Nombre  FROM Clientes     ");
  EXPECT_EQ(query.CriterioActual(), u"");
  EXPECT_EQ(query.Tag(), u"");
  EXPECT_EQ(query.Idioma(), 0);
  EXPECT_EQ(query.NumColumnas(), 1);
  EXPECT_FALSE(query.Crear(request(Engine::Jet, u"Nombre")));
  EXPECT_FALSE(query.Creado());
  EXPECT_EQ(query.SQL(), u"     ");
  EXPECT_EQ(traced(), Traces{u"cSQL20.Crear: 13 ColumnasSELECT is not an array"});
}

TEST_F(Csql20CreateTest, TellsInTheLanguageOfTheThread) {
  struct Row {
    TextView language, box;
  };
  constexpr Row kRows[] = {
      {u"0", u"Objeto: cSQL20\r\nM\u00e9todo: ConstruirSelect\r\nError 9: Subscript out of range"},
      {u"1", u"Object: cSQL20\r\nMethod: ConstruirSelect\r\nError 9: Subscript out of range"},
      {u"3", u"Objet: cSQL20\r\nM\u00e9thode: ConstruirSelect\r\nErreur 9: Subscript out of range"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(row.language));
    thread.load_language(row.language);
    cSQL20 query;
    QueryRequest wanted = request(Engine::Jet, list({u"a"}));
    wanted.Idioma = 2;  // of the object: the boxes are the thread's
    EXPECT_FALSE(showing({Text(row.box)}, [&] { return query.Crear(wanted); }));
  }
  EXPECT_EQ(traced(), Traces(3, u"cSQL20.Crear: 9 Subscript out of range"));
}

}  // namespace
}  // namespace qvr::tests
