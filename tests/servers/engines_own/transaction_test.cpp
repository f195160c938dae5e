// What engines do with the transaction of a run: DDL, and failures behind which the run goes on.
#include "servers/engines_own/engine_run.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

// Between two insertions, in a run that then fails and is not to go on.
struct Statement {
  const char* name;
  TextView mariadb, postgresql;
  TextView kept_by_mariadb;  // what ran before stays
};

const Statement kStatements[] = {
    {"a table", u"create table U(N int)", u"create table U(N int)", u"1"},
    {"a column", u"alter table T add Y int", u"alter table T add Y int", u"1"},
    {"an index", u"create index I on T(X)", u"create index I on T(X)", u"1"},
    {"a view", u"create view V as select N from T", u"create view V as select N from T", u"1"},
    {"a table that is not there", u"drop table if exists U", u"drop table if exists U", u"1"},
    {"a lock", u"lock tables T write", u"lock table T", u"1"},
    {"a temporary table", u"create temporary table U(N int)", u"create temporary table U(N int)", u""},
    {"a change of rows", u"update T set X = 'x'", u"update T set X = 'x'", u""},
};

using EngineRunStatement = Rows<EngineRun, Statement>;

TEST_P(EngineRunStatement, EndsTheTransactionOrIsAPartOfIt) {
  answer(BoxAnswer::No);
  EXPECT_FALSE(runs({u"insert into T(N) values(1)", by_server(GetParam().mariadb, GetParam().postgresql),
                     u"insert into T(N) values(2)", u"nonsense", u"insert into T(N) values(3)"}));
  EXPECT_EQ(failures(), 1u);
  EXPECT_EQ(numbers(), by_server<TextView>(GetParam().kept_by_mariadb, u""));
}

INSTANTIATE_TEST_SUITE_P(, EngineRunStatement, testing::ValuesIn(kStatements), row_name);

TEST_F(EngineRun, DdlThatFailsCommitsToo) {
  answer(BoxAnswer::No);
  EXPECT_FALSE(runs({u"insert into T(N) values(1)", u"create table T(N int)"}));
  EXPECT_EQ(numbers(), by_server<TextView>(u"1", u""));
}

TEST_F(EngineRun, ATableStaysOrIsTakenBackWithTheRun) {
  answer(BoxAnswer::No);
  EXPECT_FALSE(runs({u"create table u(N int)", u"nonsense"}));
  EXPECT_EQ(has_table(u"u"), by_server(true, false));
}

// Of PostgreSQL's own; MariaDB knows neither.
struct Outside {
  const char* name;
  TextView statement;
};

constexpr Outside kOutside[] = {
    {"cleaning up", u"vacuum T"},
    {"an index beside its readers", u"create index concurrently I on T(X)"},
};

using EngineRunOutside = Rows<EngineRun, Outside>;

TEST_P(EngineRunOutside, IsRefusedInATransaction) {
  answer(BoxAnswer::No);
  EXPECT_FALSE(runs({u"insert into T(N) values(1)", GetParam().statement}));
  EXPECT_EQ(was_told(u"cannot run inside a transaction block"), by_server(false, true));
  EXPECT_EQ(runs({GetParam().statement}, {}, Text(kNoTransaction)), by_server(false, true));
}

INSTANTIATE_TEST_SUITE_P(, EngineRunOutside, testing::ValuesIn(kOutside), row_name);

constexpr TextView kNonsense = u"nonsense", kDuplicate = u"insert into T(N) values(1)";

// The levels of psqlODBC's own rollback, which it has for failures inside a transaction; MariaDB takes back the failed
// command and no more.
struct Level {
  const char* name;
  TextView options, failing;
  std::size_t failures;
  TextView numbers;
};

const Level kLevels[] = {
    {"unset, a duplicate", u"", kDuplicate, 1, u"1,2,3"},
    // The driver sends its savepoint together with the command: what cannot be parsed sets none, and all goes.
    {"unset, a syntax error", u"", kNonsense, 1, u"3"},
    {"statement, a duplicate", u"Protocol=7.4-2", kDuplicate, 1, u"1,2,3"},
    {"statement, a syntax error", u"Protocol=7.4-2", kNonsense, 1, u"3"},
    {"transaction, a duplicate", u"Protocol=7.4-1", kDuplicate, 1, u"3"},
    {"transaction, a syntax error", u"Protocol=7.4-1", kNonsense, 1, u"3"},
    // The server's way: each further command is refused, and the COMMIT is a rollback that answers as if it were none.
    {"none, a duplicate", u"Protocol=7.4-0", kDuplicate, 2, u""},
    {"none, a syntax error", u"Protocol=7.4-0", kNonsense, 2, u""},
};

class EngineRunLevel : public Rows<EngineRun, Level> {
 protected:
  bool runs_over_a_failure(Text id) {
    return runs({u"insert into T(N) values(1)", u"insert into T(N) values(2)", GetParam().failing,
                 u"insert into T(N) values(3)"},
                by_server<TextView>(u"", GetParam().options), std::move(id));
  }
};

TEST_P(EngineRunLevel, AYesCommitsWhatTheEngineLeft) {
  answer(BoxAnswer::Yes);
  EXPECT_TRUE(runs_over_a_failure(u"app"));
  EXPECT_EQ(failures(), by_server<std::size_t>(1, GetParam().failures));
  EXPECT_EQ(was_told(u"current transaction is aborted"), by_server(false, GetParam().failures == 2));
  EXPECT_EQ(numbers(), by_server<TextView>(u"1,2,3", GetParam().numbers));
  EXPECT_EQ(events.ends, std::vector<bool>{true});
}

TEST_P(EngineRunLevel, ANoTakesAllBack) {
  answer(BoxAnswer::No);
  EXPECT_FALSE(runs_over_a_failure(u"app"));
  EXPECT_EQ(numbers(), u"");
}

TEST_P(EngineRunLevel, EachCommandStandsByItselfWithoutATransaction) {
  answer(BoxAnswer::Yes);
  EXPECT_TRUE(runs_over_a_failure(Text(kNoTransaction)));
  EXPECT_EQ(failures(), 1u);
  EXPECT_EQ(numbers(), u"1,2,3");
}

INSTANTIATE_TEST_SUITE_P(, EngineRunLevel, testing::ValuesIn(kLevels), row_name);

}  // namespace
}  // namespace qvr::tests
