// What a rollback takes back.
#include "qvrscript/run/committing.h"

#include <gtest/gtest.h>

#include "base/utf8.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using namespace script_tool;

struct Row {
  const char* name;
  TextView commands;  // with GO lines for "|"
  Engine engine;
  Ddl told;
  std::size_t last;  // the command that was begun last
  Ending ending;
  std::size_t kept_up_to = 0;
  const char* statement = "";
};

constexpr Engine kJet = Engine::Jet, kSql = Engine::SqlServer, kOracle = Engine::Oracle;
constexpr Ending kBack = Ending::TakenBack, kPartly = Ending::PartlyKept, kPerhaps = Ending::PerhapsKept;

const Row kRows[] = {
    {"data", u"insert into T values(1)|update T set N = 2|", kOracle, Ddl::Unknown, 2, kBack},
    {"DDL of Oracle", u"insert 1|create table T(N int)|insert 2|", kOracle, Ddl::Unknown, 3, kPartly, 2,
     "create table"},
    {"DDL of Oracle that was not reached", u"insert 1|create table T(N int)|", kOracle, Ddl::Unknown, 1, kBack},
    {"settings of Oracle's session", u"insert 1|alter session set X = 1|", kOracle, Ddl::Unknown, 2, kBack},
    {"DDL that is taken back", u"create table T(N int)|", kSql, Ddl::RolledBack, 1, kBack},
    {"DDL that commits", u"ALTER TABLE T|", kSql, Ddl::Commits, 1, kPartly, 1, "ALTER TABLE"},
    {"a temporary table", u"insert 1|create temporary table T(N int)|", kSql, Ddl::Commits, 2, kBack},
    {"what is temporary for Oracle", u"create temporary tablespace T|", kOracle, Ddl::Unknown, 1, kPartly, 1,
     "create temporary"},
    {"a transaction's begin", u"insert 1|begin|", kSql, Ddl::Commits, 2, kPartly, 2, "begin"},
    {"a transaction's begin before a statement", u"Begin; insert 1|", kSql, Ddl::Commits, 1, kPartly, 1, "Begin"},
    {"a transaction's begin in two words", u"START TRANSACTION READ ONLY|", kSql, Ddl::Commits, 1, kPartly, 1,
     "START TRANSACTION"},
    {"a transaction's begin that commits nothing", u"insert 1|begin|", kSql, Ddl::RolledBack, 2, kBack},
    {"a block", u"begin not atomic insert 1; end|", kSql, Ddl::Commits, 1, kBack},
    {"a block of Oracle", u"begin x; end;|", kOracle, Ddl::Unknown, 1, kBack},
    {"automatic commits", u"set autocommit = 1|", kSql, Ddl::Commits, 1, kPartly, 1, "set autocommit"},
    {"locks", u"lock tables T write|", kSql, Ddl::Commits, 1, kPartly, 1, "lock tables"},
    {"DDL that is refused", u"alter table T|", kJet, Ddl::Refused, 1, kBack},
    {"DDL of a database that tells nothing", u"alter table T|", kJet, Ddl::Unknown, 1, kPerhaps, 1, "alter table"},
    {"the last of several", u"drop table A|x|grant all to B|y|", kOracle, Ddl::Unknown, 4, kPartly, 3, "grant all"},
    {"its own commit", u"x|COMMIT|y|", kSql, Ddl::RolledBack, 3, kPartly, 2, "COMMIT"},
    {"its own commit behind a statement", u"update T set N = 1; commit|", kSql, Ddl::RolledBack, 1, kPartly, 1,
     "commit"},
    {"its own rollback", u"rollback|", kJet, Ddl::RolledBack, 1, kPerhaps, 1, "rollback"},
    {"a word in a comment", u"-- commit\r\nx|/* create */ y|", kOracle, Ddl::Unknown, 2, kBack},
    {"a word in a string", u"insert into T values('; commit')|", kOracle, Ddl::Unknown, 1, kBack},
    {"a word inside a statement", u"select commit from create|", kOracle, Ddl::Unknown, 1, kBack},
    {"a commit inside a procedure", u"create procedure P as begin x; commit; end;|", kSql, Ddl::RolledBack, 1, kBack},
    {"nothing begun", u"create table T(N int)|", kOracle, Ddl::Unknown, 0, kBack},
};

using Rollbacks = Rows<testing::Test, Row>;

TEST_P(Rollbacks, AreJudgedByWhatRan) {
  const Row& row = GetParam();
  const Text text = replace_all(row.commands, u"|", u"\r\nGO\r\n");
  std::vector<ReadScript> scripts;
  scripts.push_back({u"x", text});
  const Assembly assembly(text, row.engine, std::move(scripts));
  const Rollback rollback = judged_rollback(assembly, row.last, [&](const Committing&) { return row.told; });
  EXPECT_EQ(rollback.ending, row.ending);
  ASSERT_EQ(rollback.kept_up_to.has_value(), row.kept_up_to > 0);
  if (!rollback.kept_up_to) return;
  EXPECT_EQ(rollback.kept_up_to->command, row.kept_up_to);
  EXPECT_EQ(to_utf8(rollback.kept_up_to->statement), row.statement);
}

INSTANTIATE_TEST_SUITE_P(, Rollbacks, testing::ValuesIn(kRows), row_name);

TEST(Rollback, AsksTheDatabaseOnlyWhereItMatters) {
  const auto asked = [](TextView command, Engine engine) {
    const Text text = join({command, u"\r\nGO\r\n"});
    std::vector<ReadScript> scripts;
    scripts.push_back({u"x", text});
    bool called = false;
    judged_rollback(Assembly(text, engine, std::move(scripts)), 1,
                    [&](const Committing&) { return called = true, Ddl::Unknown; });
    return called;
  };
  EXPECT_TRUE(asked(u"create table T(N int)", Engine::SqlServer));
  EXPECT_FALSE(asked(u"create table T(N int)", Engine::Oracle));
  EXPECT_FALSE(asked(u"insert into T values(1)", Engine::SqlServer));
}

}  // namespace
}  // namespace qvr::tests
