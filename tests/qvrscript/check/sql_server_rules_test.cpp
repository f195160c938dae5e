// Transactions of a script's own, counts of rows that hide errors, and USE.
#include <gtest/gtest.h>

#include "support/rows.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

const RuleRow kTransactions[] = {
    {"all of it", "begin tran|GO|select 1|GO|commit|GO|", {"1 own-transaction", "5 own-transaction"}},
    {"in one command", "BEGIN TRANSACTION|select 1|COMMIT TRANSACTION|GO|", {"1 own-transaction", "3 own-transaction"}},
    {"distributed", "begin distributed tran|GO|", {"1 own-transaction"}},
    {"rollback", "select 1|rollback work|GO|", {"2 own-transaction"}},
    {"a block of statements", "begin select 1 end|GO|", {}},
    {"in a procedure", "create procedure P|AS|begin tran|commit|GO|", {}},
    {"in a trigger", "create trigger T on X|FOR DELETE|AS|rollback tran|GO|", {}},
    {"an option", "select 1 with rollback immediate|GO|", {}},
    {"in a string or comment", "select 'commit' -- rollback|GO|", {}},
};

using OwnTransaction = Rows<testing::Test, RuleRow>;

TEST_P(OwnTransaction, IsFoundInCommands) { expect_rules(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, OwnTransaction, testing::ValuesIn(kTransactions), row_name);

const RuleRow kCounts[] = {
    {"one change", "update T set N = 1|GO|delete from T|GO|", {}},
    {"two changes", "select 1|insert into T values (1)|delete from T|GO|", {"2 counts-hide-errors"}},
    {"first of a command only", "delete T|delete U|delete V|GO|", {"1 counts-hide-errors"}},
    {"a call behind", "delete T exec P|GO|", {"1 counts-hide-errors"}},
    {"behind a name in brackets",
     "select 1 from [T] A join [U] on [N] update [V] set X = 1 drop table [U]|GO|",
     {"1 counts-hide-errors"}},
    {"an error behind", "update T set N = 1 if @@rowcount = 0 raiserror('x', 16, 1)|GO|", {"1 counts-hide-errors"}},
    {"DDL behind", "delete T;|alter table T drop column N|GO|", {"1 counts-hide-errors"}},
    {"nothing that is counted before", "create table T (N int) insert into T values (1)|GO|", {}},
    {"switched off", "set nocount on|delete T|delete U|GO|", {}},
    {"switched off before", "SET NOCOUNT ON|GO|delete T delete U|GO|", {}},
    {"switched on again", "set nocount on|GO|set nocount off|GO|delete T delete U|GO|", {"5 counts-hide-errors"}},
    {"switched off too late", "delete T set nocount on delete U|GO|", {"1 counts-hide-errors"}},
    {"either of two", "if exists (select 1) update T set N = 1 else insert into T values (1)|GO|", {}},
    {"either of two blocks", "if 1 = 1 begin delete T end else begin delete U end|GO|", {}},
    {"behind either", "if 1 = 1 delete T else delete U drop table T|GO|", {"1 counts-hide-errors"}},
    {"rows of a query", "insert into T select N from U|GO|", {}},
    {"rows of a call", "insert into T exec P|GO|", {}},
    {"a call behind the rows of a call", "insert into T exec P|exec Q|GO|", {"1 counts-hide-errors"}},
    {"a call behind values", "insert into T values (1) exec P|GO|", {"1 counts-hide-errors"}},
    {"a merge",
     "merge T using U on 1 = 1 when matched then update set N = 1 when not matched then insert (N) values (1);|"
     "GO|",
     {}},
    {"a key",
     "alter table T add constraint C foreign key (N) references U on delete cascade on update cascade|GO|",
     {}},
    {"a key that sets",
     "alter table T add foreign key (N) references U on delete set null on update cascade exec P|GO|",
     {}},
    {"another setting", "set xact_abort on|delete T|exec P|GO|", {"2 counts-hide-errors"}},
    {"permissions", "grant select, insert, update, delete on T to X grant execute on P to X|GO|", {}},
    {"a permission behind", "delete T revoke execute on P to X|GO|", {"1 counts-hide-errors"}},
    {"one permission", "grant delete on T to X exec P|GO|", {}},
    {"a hint", "select 1 from T inner merge join U on 1 = 1 option (merge join) exec P|GO|", {}},
    {"statistics", "update statistics T exec P|GO|", {}},
};

using HiddenError = Rows<testing::Test, RuleRow>;

TEST_P(HiddenError, IsFoundInCommands) { expect_rules(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, HiddenError, testing::ValuesIn(kCounts), row_name);

const RuleRow kModules[] = {
    {"procedure", "create procedure P|AS|delete T|delete U|GO|", {"3 counts-hide-errors"}},
    {"procedure of one change", "create procedure P|AS|delete T|GO|", {}},
    {"procedure without counts", "create procedure P|AS|set nocount on|delete T|delete U|GO|", {}},
    {"the session's setting is another's",
     "set nocount on|GO|create procedure P|AS|delete T|delete U|GO|",
     {"5 counts-hide-errors"}},
    {"and stays", "create procedure P|AS|set nocount on|GO|delete T delete U|GO|", {"5 counts-hide-errors"}},
    {"trigger of one change",
     "create trigger T on X|FOR INSERT, UPDATE, DELETE|AS|delete Y|GO|",
     {"4 counts-hide-errors"}},
    {"trigger without counts", "create trigger T on X|FOR DELETE|AS|set nocount on|delete Y|GO|", {}},
    {"trigger without a change", "create trigger T on X|FOR UPDATE|AS|if update(N) select 1|GO|", {}},
};

using HiddenErrorOfAModule = Rows<testing::Test, RuleRow>;

TEST_P(HiddenErrorOfAModule, IsFound) { expect_rules(GetParam()); }

INSTANTIATE_TEST_SUITE_P(, HiddenErrorOfAModule, testing::ValuesIn(kModules), row_name);

TEST(UseDatabase, IsFoundBehindTheFirstCommand) {
  expect_rules({
      {"the first", "use X|GO|select 1|GO|", {}},
      {"the first behind a comment", "-- a|GO|use X|GO|", {}},
      {"another", "select 1|GO|USE [X]|GO|", {"3 use-database"}},
      {"in a command", "select 1 use X|GO|", {"1 use-database"}},
      {"a hint", "select 1 option (use hint ('x'))|GO|", {}},
  });
}

TEST(SqlServerRules, AreSqlServersOnly) {
  expect_rules({{"Oracle", "delete from T|GO|commit|GO|", {}}}, Engine::Oracle);
  expect_rules({{"unknown", "select 1|GO|commit|GO|", {"3 own-transaction"}}}, Engine::None);
}

}  // namespace
}  // namespace qvr::tests
