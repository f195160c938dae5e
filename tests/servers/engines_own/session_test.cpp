// Commands that change the session under a run: transactions and character sets of the script's own.
#include "servers/engines_own/engine_run.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

// Between the insertions of 1 and 2, and in the end a failure perhaps, behind which the run is not to go on.
struct Setting {
  const char* name;
  TextView mariadb, postgresql;
  bool transaction, fails;
  TextView in_mariadb, in_postgresql;
};

const Setting kSettings[] = {
    {"a commit", u"commit", u"commit", true, true, u"1", u"1"},
    {"a rollback", u"rollback", u"rollback", true, false, u"2", u"2"},
    {"a rollback before a failure", u"rollback", u"rollback", true, true, u"", u""},
    {"a begin", u"begin", u"begin", true, true, u"1", u""},
    {"a begin before the end", u"begin", u"begin", true, false, u"1,2", u"1,2"},
    {"a savepoint", u"savepoint A", u"savepoint A", true, true, u"", u""},
    {"a commit by another name", u"set autocommit = 1", u"end", true, true, u"1,2", u"1"},
    {"no transaction, a commit", u"commit", u"commit", false, true, u"1,2", u"1,2"},
    // Nothing ends these: the connection closes, and the answer is True.
    {"no transaction, a begin", u"begin", u"begin", false, false, u"1", u"1"},
    {"no transaction, no autocommit", u"set autocommit = 0", u"start transaction", false, false, u"1", u"1"},
    {"no transaction, a begin before a failure", u"begin", u"begin", false, true, u"1", u"1"},
};

using EngineRunSetting = Rows<EngineRun, Setting>;

TEST_P(EngineRunSetting, LeavesInTheDatabase) {
  const Setting& row = GetParam();
  answer(BoxAnswer::No);
  EXPECT_EQ(runs({u"insert into T(N) values(1)", by_server(row.mariadb, row.postgresql), u"insert into T(N) values(2)",
                  row.fails ? u"nonsense" : u"select 1"},
                 {}, row.transaction ? Text(u"app") : Text(kNoTransaction)),
            !row.fails);
  EXPECT_EQ(failures(), row.fails ? 1u : 0u);
  EXPECT_EQ(numbers(), by_server(row.in_mariadb, row.in_postgresql));
}

INSTANTIATE_TEST_SUITE_P(, EngineRunSetting, testing::ValuesIn(kSettings), row_name);

// The driver hands texts over in the character set of the connection, which the server must not be told otherwise.
TEST_F(EngineRun, SetNamesIsRefusedOrSpoilsTheTexts) {
  answer(BoxAnswer::Yes);
  EXPECT_TRUE(runs({u"set names 'latin1'", u"insert into T values(1, 'Jam\u00f3n')"}));
  EXPECT_EQ(was_told(u"SET NAMES is not allowed"), by_server(true, false));
  EXPECT_EQ(failures(), by_server<std::size_t>(1, 0));
  EXPECT_EQ(ask(u"select X from T"), by_server<TextView>(u"Jam\u00f3n", u"Jam\u00c3\u00b3n"));
}

}  // namespace
}  // namespace qvr::tests
