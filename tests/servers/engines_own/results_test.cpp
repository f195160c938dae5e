// What commands answer beside success and failure: warnings, several results, rows.
#include "servers/engines_own/engine_run.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct Remarked {
  const char* name;
  TextView mariadb, postgresql;
};

const Remarked kRemarked[] = {
    {"a table that is not there", u"drop table if exists U", u"drop table if exists U"},
    {"a table that is there", u"create table if not exists T(N int)", u"create table if not exists T(N int)"},
    {"what the script tells itself", u"signal sqlstate '01000' set message_text = 'cuidado'",
     u"do $$ begin raise notice 'hola'; raise warning 'cuidado'; end $$"},
    {"a division by zero or a word to the user", u"select 1/0", u"do $$ begin raise info 'hola'; end $$"},
};

using EngineRunRemarked = Rows<EngineRun, Remarked>;

TEST_P(EngineRunRemarked, IsNoFailure) {
  EXPECT_TRUE(runs({by_server(GetParam().mariadb, GetParam().postgresql), u"insert into T(N) values(1)"}));
  EXPECT_EQ(numbers(), u"1");
}

INSTANTIATE_TEST_SUITE_P(, EngineRunRemarked, testing::ValuesIn(kRemarked), row_name);

TEST_F(EngineRun, ATextThatIsTooLongIsAFailure) {
  answer(BoxAnswer::No);
  EXPECT_FALSE(runs({u"insert into T values(1, 'veinti\u00fan letras, m\u00e1s o menos')"}));
  EXPECT_EQ(numbers(), u"");
}

TEST_F(EngineRun, ATextThatIsCutIsNone) {
  EXPECT_TRUE(
      runs({by_server<TextView>(u"set sql_mode = ''", u"select 1"),
            by_server<TextView>(u"insert into T values(1, 'veinti\u00fan letras, m\u00e1s o menos')",
                                u"insert into T values(1, 'veinti\u00fan letras, m\u00e1s o menos'::varchar(20))")}));
  EXPECT_EQ(ask(u"select X from T"), u"veinti\u00fan letras, m\u00e1s");
}

struct Batch {
  const char* name;
  TextView command;
  TextView told;           // of the failure; empty: there is none
  TextView alone_mariadb;  // left without a transaction; PostgreSQL takes back the whole command
};

const Batch kBatches[] = {
    {"rows twice", u"select 1; select 2", u"", u""},
    {"rows between changes", u"insert into T(N) values(1); select 1; insert into T(N) values(2)", u"", u"1,2"},
    {"a failure at once", u"nonsense; insert into T(N) values(2)", u"nonsense", u""},
    {"a duplicate", u"insert into T(N) values(1); insert into T(N) values(1); insert into T(N) values(2)", u"uplicate",
     u"1"},
    {"a failure behind rows", u"select 1; select 2; insert into U(N) values(1)", u"exist", u""},
    {"marks in texts", u"insert into T values(1, ';'); insert into T values(2, '; nonsense')", u"", u"1,2"},
};

using EngineRunBatch = Rows<EngineRun, Batch>;

TEST_P(EngineRunBatch, IsReportedWhereverItFails) {
  const bool fails = !GetParam().told.empty();
  const TextView options = by_server<TextView>(kSeveralStatements, u"");
  answer(BoxAnswer::No);
  EXPECT_EQ(runs({GetParam().command}, options), !fails);
  EXPECT_EQ(numbers(), fails ? TextView() : GetParam().alone_mariadb);
  Session(server.odbc_string()).run(u"delete from T");
  EXPECT_EQ(runs({GetParam().command}, options, Text(kNoTransaction)), !fails);
  EXPECT_EQ(failures(), fails ? 2u : 0u);
  EXPECT_EQ(was_told(GetParam().told), fails);
  EXPECT_EQ(numbers(), fails ? by_server<TextView>(GetParam().alone_mariadb, u"") : GetParam().alone_mariadb);
}

INSTANTIATE_TEST_SUITE_P(, EngineRunBatch, testing::ValuesIn(kBatches), row_name);

TEST_F(EngineRun, SeveralStatementsAreRefusedWithoutMariaDbsOption) {
  answer(BoxAnswer::No);
  EXPECT_EQ(runs({u"insert into T(N) values(1); insert into T(N) values(2)"}), by_server(false, true));
  EXPECT_EQ(was_told(u"You have an error in your SQL syntax"), by_server(true, false));
  EXPECT_EQ(numbers(), by_server<TextView>(u"", u"1,2"));
}

TEST_F(EngineRun, RowsAreNoMatterForARun) {
  EXPECT_TRUE(runs({u"select N from T", u"select 1", u"update T set N = 2 where N = 1", u"delete from T",
                    by_server<TextView>(u"select seq from seq_1_to_1000000", u"select generate_series(1, 1000000)"),
                    u"insert into T(N) values(1)"}));
  EXPECT_EQ(numbers(), u"1");
}

// Told with the command, or where the driver hands rows over while the server makes them, with a row.
TEST_F(EngineRun, AFailureAmongRowsIsOne) {
  answer(BoxAnswer::No);
  for (const TextView options : {TextView(), by_server<TextView>(u"OPTION=3145728", u"UseDeclareFetch=1;Fetch=10")}) {
    EXPECT_FALSE(runs({by_server<TextView>(u"select 18446744073709551000 + seq from seq_1_to_1000",
                                           u"select 1 / (999 - g) from generate_series(1, 1000) g"),
                       u"insert into T(N) values(1)"},
                      options));
    EXPECT_EQ(numbers(), u"");
  }
}

}  // namespace
}  // namespace qvr::tests
