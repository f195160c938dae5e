// AS and FOR lines that the rewriting for WITH ENCRYPTION changes or misses.
#include <gtest/gtest.h>

#include "tool_in_process.h"

namespace qvr::tests {
namespace {

TEST(EncryptionRules, HaveNothingAgainstWhatIsRewritten) {
  expect_rules({
      {"procedure", "create procedure P|AS|select 1|GO|", {}},
      {"small letters", "create view V|as|select 1 x|GO|", {}},
      {"insert trigger", "create trigger T on X|FOR INSERT|AS|select 1|GO|", {}},
      {"three events", "alter trigger T on X|for insert, update, delete|as|select 1|GO|", {}},
      {"create or alter", "create or alter proc P|AS|select 1|GO|", {}},
      {"an alias", "select 1 as x|GO|", {}},
  });
}

TEST(EncryptionRules, TellOfWhatStaysUnencrypted) {
  expect_rules({
      {"AS behind the name", "select 1|GO|create procedure P as|select 1|GO|", {"3 not-encrypted"}},
      {"a blank behind AS", "create procedure P|AS |select 1|GO|", {"1 not-encrypted"}},
      {"AS in a comment only", "create view V as /*|AS|*/ select 1 x|GO|", {"1 not-encrypted", "2 as-line"}},
  });
}

TEST(EncryptionRules, TellOfWhatIsRewrittenBesides) {
  expect_rules({
      {"no module", "select 1|AS|x|GO|", {"2 as-line"}},
      {"a second line", "create procedure P|AS|select 1|AS|x|GO|", {"4 as-line"}},
      {"in a string", "select '|AS|'|GO|", {"2 as-line"}},
  });
}

TEST(EncryptionRules, TellOfClausesThatDoNotFit) {
  expect_rules({
      {"one event of two", "create trigger T on X|FOR INSERT, UPDATE|AS|select 1|GO|", {"2 trigger-for-line"}},
      {"no blank behind the comma", "create trigger T on X|FOR INSERT,UPDATE,DELETE|AS|x|GO|", {"2 trigger-for-line"}},
      {"behind the table", "create trigger T on X for delete|AS|x|GO|", {"1 trigger-for-line"}},
      {"AFTER", "create trigger T on X|AFTER INSERT|AS|x|GO|", {"1 trigger-for-line"}},
      {"WITH before", "create view V|WITH SCHEMABINDING|AS|select 1 x|GO|", {"3 encryption-behind-with"}},
      {"encrypted already", "create procedure P|with encryption|AS|select 1|GO|", {"3 encryption-behind-with"}},
  });
}

TEST(EncryptionRules, AreSqlServersOnly) {
  expect_rules({{"the engine's own", "create or replace procedure P|AS |begin null; end;|GO|", {}}}, Engine::Oracle);
}

}  // namespace
}  // namespace qvr::tests
