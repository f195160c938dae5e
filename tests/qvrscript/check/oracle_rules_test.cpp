// Terminators that Oracle refuses or wants, and DDL that commits.
#include <gtest/gtest.h>

#include "support/rows.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

const RuleRow kStatements[] = {
    {"without a terminator", "select 1 from dual|GO|", {}},
    {"semicolon", "select 1|from dual;|GO|", {"2 oracle-terminator"}},
    {"semicolon and a comment", "select 1 from dual; -- all|GO|", {"1 oracle-terminator"}},
    {"two semicolons", "select 1 from dual;;|GO|", {"1 oracle-terminator"}},
    {"slash", "select 1 from dual|/|GO|", {"2 oracle-terminator"}},
    {"slash on the line", "select 1 from dual /|GO|", {"1 oracle-terminator"}},
    {"semicolon and slash", "select 1 from dual;|/|GO|", {"2 oracle-terminator"}},
    {"slash between", "select 1 from dual| / |select 2 from dual|GO|", {"2 oracle-terminator"}},
    {"semicolon in a string", "insert into T values (';|/|;')|GO|", {}},
    {"semicolon in a comment", "select 1 from dual -- ;|GO|", {}},
    {"a division", "select 4 / 2 from dual|GO|", {}},
    {"two statements", "delete from T;|delete from U|GO|", {"2 several-statements"}},
    {"a table", "create table T (N number);|GO|", {"1 oracle-terminator"}},
    {"a view", "create or replace view V as select 1 N from dual;|GO|", {"1 oracle-terminator"}},
    {"an object type, which takes both",
     "create type T as object (N number);|GO|create type U as object (N number)|GO|",
     {}},
    {"a function in a query", "with function F return number is begin return 1; end; select F from dual|GO|", {}},
};

using OracleStatement = Rows<testing::Test, RuleRow>;

TEST_P(OracleStatement, HasNoTerminator) { expect_rules(GetParam(), Engine::Oracle); }

INSTANTIATE_TEST_SUITE_P(, OracleStatement, testing::ValuesIn(kStatements), row_name);

const RuleRow kBlocks[] = {
    {"block", "begin P; end;|GO|", {}},
    {"declaration", "declare N number; begin P; end; -- done|GO|", {}},
    {"without a semicolon", "begin P;|end|GO|", {"2 oracle-block-end"}},
    {"slash behind it", "begin P; end;|/|GO|", {"2 oracle-block-end"}},
    {"procedure", "create procedure P is begin null; end;|GO|", {}},
    {"procedure without", "create or replace procedure P is|begin null; end P|GO|", {"2 oracle-block-end"}},
    {"function",
     "create or replace noneditionable function F return number is begin return 1; end|GO|",
     {"1 oracle-block-end"}},
    {"package", "create package P is procedure Q; end|GO|", {"1 oracle-block-end"}},
    {"package body", "create package body P is procedure Q is begin null; end; end P;|/|GO|", {"2 oracle-block-end"}},
    {"trigger", "create trigger T before insert on X for each row begin null; end|GO|", {"1 oracle-block-end"}},
    {"trigger that calls", "create trigger T before insert on X call P()|GO|", {}},
    {"body of a type", "create type body T is member procedure P is begin null; end; end|GO|", {"1 oracle-block-end"}},
    {"another language", "create or replace java source named J as class J { int n; int m; }|GO|", {}},
    {"wrapped", "create procedure P wrapped|a000000|GO|", {}},
};

using OracleBlock = Rows<testing::Test, RuleRow>;

TEST_P(OracleBlock, EndsInASemicolon) { expect_rules(GetParam(), Engine::Oracle); }

INSTANTIATE_TEST_SUITE_P(, OracleBlock, testing::ValuesIn(kBlocks), row_name);

const RuleRow kCommits[] = {
    {"behind a change", "insert into T values (1)|GO|create table U (N number)|GO|", {"3 oracle-ddl-commits"}},
    {"behind a block", "begin P; end;|GO|drop table U|GO|", {"3 oracle-ddl-commits"}},
    {"in front of it", "create table U (N number)|GO|insert into T values (1)|GO|", {}},
    {"once for a change",
     "update T set N = 1|GO|truncate table U|GO|grant select on T to X|GO|",
     {"3 oracle-ddl-commits"}},
    {"committed before", "delete from T|GO|commit|GO|create table U (N number)|GO|", {}},
    {"a setting of the session", "insert into T values (1)|GO|alter session set nls_territory = 'SPAIN'|GO|", {}},
};

using OracleDdl = Rows<testing::Test, RuleRow>;

TEST_P(OracleDdl, CommitsWhatRanBefore) { expect_rules(GetParam(), Engine::Oracle); }

INSTANTIATE_TEST_SUITE_P(, OracleDdl, testing::ValuesIn(kCommits), row_name);

TEST(OracleRules, AreOraclesOnly) {
  expect_rules({{"SQL Server", "insert into T values (1);|GO|drop table U;|GO|", {}}});
  expect_rules({{"Jet", "insert into T values (1);|GO|drop table U;|GO|", {}}}, Engine::Jet);
}

}  // namespace
}  // namespace qvr::tests
