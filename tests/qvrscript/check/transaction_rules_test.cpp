// Statements that SQL Server refuses in the run's transaction.
#include <gtest/gtest.h>

#include "support/rows.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

struct Statement {
  const char* name;
  std::string text;
};

const Statement kRefused[] = {
    {"create database", "CREATE DATABASE x"},
    {"drop database", "drop database x"},
    {"alter database", "alter database x set recovery simple"},
    {"backup database", "BACKUP DATABASE x to disk='y'"},
    {"backup log", "backup log x to y"},
    {"restore database", "RESTORE DATABASE x from y"},
    {"restore log", "restore log x from y"},
    {"reconfigure", "RECONFIGURE"},
    {"create fulltext catalog", "create fulltext catalog x"},
    {"alter fulltext index", "alter fulltext index on x"},
    {"drop fulltext catalog", "drop fulltext catalog x"},
};

using RefusedStatement = Rows<testing::Test, Statement>;

TEST_P(RefusedStatement, IsFound) {
  EXPECT_EQ(rules_in(lines("select 1|GO|x|" + GetParam().text + "|GO|")), Rules{"4 no-transaction"});
}

INSTANTIATE_TEST_SUITE_P(, RefusedStatement, testing::ValuesIn(kRefused), row_name);

const RuleRow kNoStatements[] = {
    {"comment", "-- create database x|select 1|GO|", {}},
    {"string", "select 'drop database x'|GO|", {}},
    {"permission", "grant create database to x|GO|", {}},
    {"permissions", "grant backup log, backup database to x|GO|", {}},
    {"body of a procedure", "create procedure P|AS|backup database x to y|GO|", {}},
    {"part of a database", "alter database scoped configuration clear procedure_cache|GO|", {}},
    {"another thing", "create table DatabaseLog(N int)|GO|", {}},
    {"never run", "select 1|GO|-- create database x|", {}},
};

using NoRefusedStatement = Rows<testing::Test, RuleRow>;

TEST_P(NoRefusedStatement, HasNoFinding) { expect_rules(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, NoRefusedStatement, testing::ValuesIn(kNoStatements), row_name);

TEST(TransactionRules, AreSqlServersOnly) {
  expect_rules({{"another engine", "alter database x|GO|", {}}}, Engine::Oracle);
  expect_rules({{"an unknown one", "alter database x|GO|", {"1 no-transaction"}}}, Engine::None);
}

}  // namespace
}  // namespace qvr::tests
