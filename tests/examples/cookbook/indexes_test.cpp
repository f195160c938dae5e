// The indexes of the cookbook under the conditions that the search box writes, as the engines' own plans tell.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "connection/qvrcfp.h"
#include "odbc/odbc_statement.h"
#include "query/csql20.h"
#include "servers/server.h"
#include "servers/session.h"
#include "session/value_convert.h"
#include "support/temporary_folder.h"
#include "support/test_thread.h"

namespace qvr::tests {
namespace {

constexpr const char* kRecipes = QVR_TESTS_COOKBOOK "/indexes/";

std::vector<Text> statements_of(const char* name) {
  std::ifstream file(std::string(kRecipes) + name);
  std::vector<Text> statements(1);
  for (std::string line; std::getline(file, line);) {
    if (line == "GO") {
      statements.emplace_back();
    } else {
      statements.back() += from_utf8(line).value() + u"\n";
    }
  }
  EXPECT_TRUE(statements.back().empty()) << "text behind the last GO";
  statements.pop_back();
  return statements;
}

// A list of the table's names.
class Names {
 public:
  explicit Names(Engine engine) {
    QueryRequest request;
    request.MotorBD = engine;
    request.ColumnasSELECT = Array{{Text(u"Nombre"), Text(u"T")}, 0, 1};
    request.TablasFROM = u"Clientes";
    EXPECT_TRUE(query.Crear(request));
  }
  Text searched(TextView typed) {
    EXPECT_TRUE(query.InterpretarBusqueda(u"Nombre", typed, {}));
    return query.SQL();
  }
  cSQL20 query;
};

Text searched(Engine engine, TextView typed) { return Names(engine).searched(typed); }

// Everything that the engine tells of how it would run a query.
std::string plan(Session& session, TextView explain, TextView query) {
  Text told;
  for (const auto& row : odbc::execute(session.connection(), join({explain, u" ", query}), {}, 0).rows) {
    for (const Value& value : row) told += (value.is<Null>() ? Text(u"-") : to_text(value)) + u" ";
    told += u"\n";
  }
  return to_utf8(told);
}

bool holds(const std::string& text, const char* part) { return text.find(part) != std::string::npos; }

struct Indexes : testing::Test {
  TestThread thread;
};

using SqliteIndexes = Indexes;
using MariaDbIndexes = Indexes;
using PostgreSqlIndexes = Indexes;

TEST_F(SqliteIndexes, ServeWhatANameBeginsWithAndIs) {
  const TemporaryFolder folder;
  Session session(join({u"DRIVER={SQLite3};Database=", folder.file(u"x.db").u16string(), u";"}));
  const std::vector<Text> recipe = statements_of("sqlite.sql");
  ASSERT_EQ(recipe.size(), 2u);
  const auto found_by_index = [&session](TextView typed) {
    return holds(plan(session, u"EXPLAIN QUERY PLAN", searched(Engine::Jet, typed)), "SEARCH Clientes USING");
  };
  session.run(recipe[0]);
  EXPECT_FALSE(found_by_index(u"ana*"));
  session.run(recipe[1]);
  EXPECT_TRUE(found_by_index(u"ana*"));
  EXPECT_TRUE(found_by_index(u"=ana"));
  EXPECT_FALSE(found_by_index(u"ana"));
}

TEST_F(PostgreSqlIndexes, ServeWhatANameBeginsWithAndHolds) {
  Session session(DatabaseServer::here().odbc_string());
  const std::vector<Text> recipe = statements_of("postgresql.sql");
  ASSERT_EQ(recipe.size(), 3u);
  const auto plan_of = [&session](TextView typed) {
    session.run(u"ANALYZE Clientes");
    return plan(session, u"EXPLAIN", searched(Engine::SqlServer, typed));
  };
  session.run(
      u"CREATE TABLE Clientes AS SELECT Id, CAST(md5(CAST(Id AS text)) AS varchar(40)) AS Nombre"
      u" FROM generate_series(1, 20000) AS Id");
  EXPECT_TRUE(holds(plan_of(u"abc1*"), "Seq Scan"));
  session.run(recipe[0]);
  EXPECT_TRUE(holds(plan_of(u"abc1*"), " clientesnombre ")) << plan_of(u"abc1*");
  EXPECT_TRUE(holds(plan_of(u"=abc1"), " clientesnombre ")) << plan_of(u"=abc1");
  EXPECT_TRUE(holds(plan_of(u"abc1"), "Seq Scan"));
  session.run(recipe[1]);
  session.run(recipe[2]);
  EXPECT_TRUE(holds(plan_of(u"abc1"), " clientesnombredentro ")) << plan_of(u"abc1");
}

// The search box writes UPPER around the column, behind which this server uses no index; a condition without it does.
TEST_F(MariaDbIndexes, ServeAConditionOfOnesOwnOnly) {
  Session session(DatabaseServer::here().odbc_string());
  const std::vector<Text> recipe = statements_of("mariadb.sql");
  ASSERT_EQ(recipe.size(), 1u);
  session.run(u"CREATE TABLE Clientes (Id INTEGER, Nombre VARCHAR(40), Notas TEXT)");
  session.run(u"INSERT INTO Clientes SELECT seq, md5(seq), '' FROM seq_1_to_20000");
  const auto range = [&session](TextView query) {
    session.run(u"ANALYZE TABLE Clientes");
    return holds(plan(session, u"EXPLAIN", query), " range ClientesNombre ClientesNombre ");
  };
  QVRcfp parameters;
  ConnectionParameters of_the_engine;
  of_the_engine.MotorBD = Engine::SqlServer;
  parameters.Asignar(u"x", of_the_engine);
  Names own(Engine::SqlServer);
  EXPECT_TRUE(own.query.AmpliarCondicionWhere(
      join({u"Nombre LIKE ", parameters.CadenaParaLikeSQL(u"abc1", false, true)}), u""));
  EXPECT_FALSE(range(own.query.SQL()));
  session.run(recipe[0]);
  EXPECT_TRUE(range(own.query.SQL())) << plan(session, u"EXPLAIN", own.query.SQL());
  EXPECT_FALSE(range(searched(Engine::SqlServer, u"abc1*")));
  session.run(
      u"ALTER TABLE Clientes ADD NombreMayus VARCHAR(40) AS (UPPER(Nombre)) PERSISTENT, ADD INDEX (NombreMayus)");
  EXPECT_FALSE(range(searched(Engine::SqlServer, u"abc1*")));
  EXPECT_FALSE(holds(plan(session, u"EXPLAIN", searched(Engine::SqlServer, u"abc1*")), "NombreMayus"));
}

}  // namespace
}  // namespace qvr::tests
