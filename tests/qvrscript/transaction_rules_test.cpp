// Statements that SQL Server refuses in the run's transaction.
#include <gtest/gtest.h>

#include "tool_in_process.h"

namespace qvr::tests {
namespace {

TEST(TransactionRules, TellOfStatementsThatAreRefused) {
  for (const char* statement :
       {"CREATE DATABASE x", "drop database x", "alter database x set recovery simple", "BACKUP DATABASE x to disk='y'",
        "backup log x to y", "RESTORE DATABASE x from y", "restore log x from y", "RECONFIGURE",
        "create fulltext catalog x", "alter fulltext index on x", "drop fulltext catalog x"}) {
    EXPECT_EQ(rules_in(lines("select 1|GO|x|" + std::string(statement) + "|GO|")), Rules{"4 no-transaction"})
        << statement;
  }
}

TEST(TransactionRules, KnowWhatIsNoStatement) {
  expect_rules({
      {"comment", "-- create database x|select 1|GO|", {}},
      {"string", "select 'drop database x'|GO|", {}},
      {"permission", "grant create database to x|GO|", {}},
      {"permissions", "grant backup log, backup database to x|GO|", {}},
      {"body of a procedure", "create procedure P|AS|backup database x to y|GO|", {}},
      {"part of a database", "alter database scoped configuration clear procedure_cache|GO|", {}},
      {"another thing", "create table DatabaseLog(N int)|GO|", {}},
      {"never run", "select 1|GO|-- create database x|", {}},
  });
}

TEST(TransactionRules, AreSqlServersOnly) {
  expect_rules({{"another engine", "alter database x|GO|", {}}}, Engine::Oracle);
  expect_rules({{"an unknown one", "alter database x|GO|", {"1 no-transaction"}}}, Engine::None);
}

}  // namespace
}  // namespace qvr::tests
