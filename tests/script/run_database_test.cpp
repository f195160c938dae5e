// The runner into a real database: what is committed, what is rolled back, what a refusal says.
#include <gtest/gtest.h>

#include "odbc/odbc_ado.h"
#include "odbc/odbc_statement.h"
#include "script/qvrscr.h"
#include "services/builtin_error_report.h"
#include "session/value_convert.h"
#include "support/run_events.h"
#include "support/temporary_folder.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class RunIntoDatabase : public testing::Test {
 protected:
  RunIntoDatabase() {
    thread.make_ado = [] { return odbc::make_odbc_ado(); };
    thread.make_error_report = [this] { return std::make_unique<services::BuiltinErrorReport>(thread.boxes); };
  }

  bool run(TextView commands, Text id = u"app") {
    Text shown = u"Hecho: ";
    return runner.EjecutarComandos(id, Engine::SqlServer, commands, connection(), shown);
  }
  Text connection() const { return join({u"Provider=MSDASQL;Extended Properties=\"", driver_string(), u"\""}); }
  Text driver_string() const {
    return join({u"DRIVER={SQLite3};Database=", folder.file(u"test.db").u16string(), u";"});
  }
  // First column of the first row, on a connection of its own.
  Text ask(TextView query) const {
    odbc::Connection own;
    own.open(driver_string(), 0);
    return to_text(odbc::execute(own, query, {}, 0).rows.at(0).at(0));
  }

  TestThread thread;
  TemporaryFolder folder;
  RunEvents events;
  QVRScr runner{events};
};

TEST_F(RunIntoDatabase, CommitsWhatRan) {
  EXPECT_TRUE(run(
      u"create table Art\u00edculos(Nombre varchar(20))\r\nGO\r\n\r\ninsert into Art\u00edculos values('Jam\u00f3n')\r\ngo\r\n"));
  EXPECT_EQ(ask(u"select Nombre from Art\u00edculos"), u"Jam\u00f3n");
  EXPECT_EQ(events.progress, (std::vector<Text>{u"Contando comandos...", u"Hecho: 0/2", u"Hecho: 1/2"}));
  EXPECT_EQ(events.ends, std::vector<bool>{true});
}

TEST_F(RunIntoDatabase, RollsBackWhenTheAnswerIsNo) {
  run(u"create table T(N int)\r\nGO\r\n");
  thread.boxes.answer(BoxAnswer::Ok);
  thread.boxes.answer(BoxAnswer::No);
  EXPECT_FALSE(run(u"insert into T values(1)\r\nGO\r\nnonsense\r\nGO\r\ninsert into T values(2)\r\nGO\r\n"));
  EXPECT_EQ(ask(u"select count(*) from T"), u"0");
  EXPECT_EQ(events.ends, (std::vector<bool>{true, false}));
  ASSERT_EQ(thread.boxes.shown.size(), 2u);
  EXPECT_TRUE(thread.boxes.shown[0].starts_with(u"Error indeterminado\r\n\r\nError -2147217900: "))
      << to_utf8(thread.boxes.shown[0]);
  EXPECT_TRUE(thread.boxes.shown[0].ends_with(u"\r\n\r\nM\u00e9todo: Ejecutar1Comando: nonsense"))
      << to_utf8(thread.boxes.shown[0]);
  EXPECT_EQ(thread.boxes.shown[1], u"\u00bfDesea que se ejecuten los restantes comandos?");
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(RunIntoDatabase, AppliesTheRestWhenTheAnswerIsYes) {
  thread.boxes.answer(BoxAnswer::Ok);
  thread.boxes.answer(BoxAnswer::Yes);
  EXPECT_TRUE(run(u"create table T(N int)\r\nGO\r\nnonsense\r\nGO\r\ninsert into T values(2)\r\nGO\r\n"));
  EXPECT_EQ(ask(u"select N from T"), u"2");
  EXPECT_EQ(events.progress.back(), u"Hecho: 1/3") << "the refused command is not counted";
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(RunIntoDatabase, KeepsWhatRanWithoutATransaction) {
  thread.boxes.answer(BoxAnswer::Ok);
  thread.boxes.answer(BoxAnswer::No);
  EXPECT_FALSE(run(u"create table T(N int)\r\nGO\r\ninsert into T values(1)\r\nGO\r\nnonsense\r\nGO\r\n",
                   u"EvitarTransaccionApp"));
  EXPECT_EQ(ask(u"select count(*) from T"), u"1");
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(RunIntoDatabase, ReportsADatabaseThatCannotBeOpened) {
  thread.boxes.answer(BoxAnswer::Ok);
  Text id, shown;
  EXPECT_FALSE(runner.EjecutarComandos(id, Engine::SqlServer, u"select 1\r\nGO\r\n",
                                       u"Provider=MSDASQL;Data Source=NoSuchDsn;", shown));
  EXPECT_TRUE(thread.boxes.shown[0].starts_with(u"Servidor no encontrado\r\n\r\nError "))
      << to_utf8(thread.boxes.shown[0]);
  EXPECT_TRUE(thread.boxes.shown[0].ends_with(u"\r\n\r\nM\u00e9todo: EjecutarComandos"))
      << to_utf8(thread.boxes.shown[0]);
  EXPECT_EQ(events.ends, std::vector<bool>{false});
  EXPECT_TRUE(events.progress.empty());
  EXPECT_EQ(traced(), Traces{u"QVRScr.EjecutarComandos: -2147467259 told by another component"});
}

TEST_F(RunIntoDatabase, RunsThousandsOfCommands) {
  Text commands = u"create table T(N int)\r\nGO\r\n";
  for (int i = 0; i < 5000; ++i) commands += join({u"insert into T values(", decimal(i), u")\r\nGO\r\n"});
  EXPECT_TRUE(run(commands));
  EXPECT_EQ(ask(u"select count(*) || '/' || sum(N) from T"), u"5000/12497500");
  EXPECT_EQ(events.progress.back(), u"Hecho: 5000/5001");
}

TEST_F(RunIntoDatabase, LeavesTheCallersConnectionToTheCaller) {
  const auto ado = odbc::make_odbc_ado();
  const auto own = ado->new_connection();
  own->set_connection_string(connection());
  own->open();
  own->begin_trans();
  EXPECT_TRUE(runner.Ejecutar1Comando(own.get(), u"create table T(N int)", Engine::SqlServer));
  EXPECT_TRUE(runner.Ejecutar1Comando(own.get(), u"insert into T values(1)", Engine::SqlServer));
  own->commit_trans();
  own->close();
  EXPECT_EQ(ask(u"select count(*) from T"), u"1");
  EXPECT_TRUE(events.ends.empty()) << "one command is no run";
}

}  // namespace
}  // namespace qvr::tests
