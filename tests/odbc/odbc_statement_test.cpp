// One statement of a connection executes command after command; none may notice what came before it.
#include "odbc/odbc_statement.h"

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "odbc/odbc_api.h"
#include "session/value_convert.h"
#include "support/rows.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct Command {
  const char* name;
  TextView text;
  std::vector<Value> parameters = {};
  std::int32_t timeout = 0;
};

const Command kCommands[] = {
    {"rows", u"select N, T from A order by N"},
    {"one column", u"select T from A"},
    {"no rows", u"select N from A where N > 100"},
    {"many rows", u"select a.N from A a, A b, A c, A d, A e"},
    {"an insertion", u"insert into A values(7, 'siete')"},
    {"a change of rows", u"update A set T = 'nuevo' where N > 1"},
    {"a change of none", u"delete from A where N > 100"},
    {"a new table", u"create table B(N int)"},
    {"a table that goes", u"drop table A"},
    {"no command", u"nonsense"},
    {"no table", u"select N from Nowhere"},
    {"a number that is there", u"insert into A values(1, 'otra vez')"},
    {"a failure among rows", u"select abs(N - 9223372036854775807 - 2) from A"},
    {"a parameter", u"select ? from A", {Value(Text(u"dado"))}},
    {"a row from parameters", u"insert into A values(?, ?)", {Value(std::int32_t{8}), Value(Text(u"ocho"))}},
    {"a parameter that is missing", u"select ? from A"},
    {"a time limit", u"select N from A", {}, 30},
};

std::string described(odbc::Connection& connection, const Command& command) {
  try {
    const odbc::ResultSet result = odbc::execute(connection, command.text, command.parameters, command.timeout);
    Text text = join({result.has_rows ? u"rows" : u"affected ", result.has_rows ? Text() : decimal(result.affected)});
    for (const Text& column : result.columns) text += join({u" ", column});
    for (const auto& row : result.rows) {
      for (const Value& each : row)
        text += join({u" ", std::holds_alternative<Null>(each.storage()) ? Text(u"null") : to_text(each)});
    }
    return to_utf8(text);
  } catch (const odbc::Failure& failure) {
    std::string text = "failure";
    for (const auto& each : failure.records()) text += " " + to_utf8(join({each.sql_state, u" ", each.description}));
    return text;
  }
}

class OdbcStatement : public testing::Test {
 protected:
  void open(odbc::Connection& connection, TextView name = u"test.db") const {
    connection.open(join({u"DRIVER={SQLite3};Database=", folder.file(name).u16string(), u";SyncPragma=OFF;"}), 0);
  }
  void open_with_table(odbc::Connection& connection, TextView name = u"test.db") const {
    open(connection, name);
    odbc::execute(connection, u"create table A(N int primary key, T varchar(20))", {}, 0);
    odbc::execute(connection, u"insert into A values(1, 'uno'), (2, 'dos'), (3, 'tres')", {}, 0);
  }

  TemporaryFolder folder;
};

using OdbcStatementAfter = Rows<OdbcStatement, Command>;

TEST_P(OdbcStatementAfter, ThisExecutesEveryCommandAsAFreshOneDoes) {
  std::int64_t pair = 0;
  for (const Command& then : kCommands) {
    SCOPED_TRACE(then.name);
    const Text number = decimal(++pair);
    odbc::Connection used, first, fresh;
    open_with_table(used, join({number, u"used.db"}));
    described(used, GetParam());
    open_with_table(first, join({number, u"fresh.db"}));
    described(first, GetParam());
    first.close();
    open(fresh, join({number, u"fresh.db"}));
    EXPECT_EQ(described(used, then), described(fresh, then));
  }
}

INSTANTIATE_TEST_SUITE_P(, OdbcStatementAfter, testing::ValuesIn(kCommands), row_name);

TEST_F(OdbcStatement, IsKeptForTheSameTimeLimitOnly) {
  odbc::Connection connection;
  open(connection);
  std::unique_ptr<odbc::Statement> used = connection.statement(30);
  const odbc::Statement* const kept = used.get();
  connection.keep(std::move(used));
  used = connection.statement(30);
  EXPECT_EQ(used.get(), kept);
  const std::unique_ptr<odbc::Statement> beside = connection.statement(30);
  EXPECT_NE(beside.get(), kept) << "it is in use";
  connection.keep(std::move(used));
  EXPECT_EQ(connection.statement(0)->timeout, 0);
  EXPECT_EQ(connection.statement(30)->timeout, 30);
}

TEST_F(OdbcStatement, IsKeptWithoutTheCursorThatItHad) {
  odbc::Connection connection;
  open_with_table(connection);
  std::unique_ptr<odbc::Statement> used = connection.statement(0);
  const TextView rows = u"select N from A", none = u"delete from A where N = 1";
  used->handle.check(odbc::api().SQLExecDirectW(used->handle.get(), odbc::wide(rows), odbc::units(rows)));
  used->handle.check(odbc::api().SQLFetch(used->handle.get()));
  connection.keep(std::move(used));
  used = connection.statement(0);
  used->handle.check(odbc::api().SQLExecDirectW(used->handle.get(), odbc::wide(none), odbc::units(none)));
  SQLSMALLINT columns = -1;
  used->handle.check(odbc::api().SQLNumResultCols(used->handle.get(), &columns));
  EXPECT_EQ(columns, 0);
}

TEST_F(OdbcStatement, GoesBeforeItsConnectionCloses) {
  odbc::Connection connection;
  open_with_table(connection);
  connection.close();
  open(connection);
  EXPECT_EQ(odbc::execute(connection, u"select N from A", {}, 0).rows.size(), 3u);
}

TEST_F(OdbcStatement, PassesOverRowsAsIfItHadReadThem) {
  odbc::Connection connection;
  open_with_table(connection);
  odbc::UnderWay under_way;
  const auto passed_over = [&](TextView text) {
    return odbc::execute(connection, text, {}, 0, under_way, odbc::ResultRows::PassedOver);
  };
  const odbc::ResultSet result = passed_over(u"select N from A");
  EXPECT_TRUE(result.has_rows);
  EXPECT_TRUE(result.rows.empty());
  EXPECT_EQ(passed_over(u"delete from A where N = 1").affected, 1);
  EXPECT_THROW(passed_over(u"select abs(N - 9223372036854775807 - 3) from A"), odbc::Failure) << "in its second row";
  EXPECT_EQ(odbc::execute(connection, u"select N from A", {}, 0).rows.size(), 2u);
}

TEST_F(OdbcStatement, HoldsNoLockAfterRowsWereRead) {
  odbc::Connection connection, other;
  open_with_table(connection);
  connection.set_autocommit(false);
  EXPECT_EQ(odbc::execute(connection, u"select N from A", {}, 0).rows.size(), 3u);
  connection.end_transaction(false);
  open(other);
  EXPECT_EQ(odbc::execute(other, u"delete from A", {}, 0).affected, 3);
  EXPECT_EQ(odbc::execute(connection, u"select N from A", {}, 0).rows.size(), 0u);
}

}  // namespace
}  // namespace qvr::tests
