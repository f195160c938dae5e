#include "script/script_fixture.h"

namespace qvr::tests {
namespace {

class OneCommandTest : public ScriptTest {
 protected:
  OneCommandTest() : connection(thread.ado.new_connection()) { taken(); }
  std::unique_ptr<services::AdoConnection> connection;
};

TEST_F(OneCommandTest, RunsOnTheCallersConnectionAndLeavesItOpen) {
  EXPECT_TRUE(runner.Ejecutar1Comando(connection.get(), u"DELETE T", Engine::Jet));
  EXPECT_EQ(taken(), command_lines("DELETE T"));
}

TEST_F(OneCommandTest, TakesTheTextAsItIs) {
  EXPECT_TRUE(runner.Ejecutar1Comando(connection.get(), u"A\r\nGO\r\nB\u00f1", Engine::Jet));
  EXPECT_EQ(taken(), command_lines("A\r\nGO\r\nB\u00f1"));
  EXPECT_TRUE(runner.Ejecutar1Comando(connection.get(), u"", Engine::Jet));
  EXPECT_EQ(taken(), command_lines(""));
}

TEST_F(OneCommandTest, ReportsAFailureWithoutEventsOrQuestions) {
  thread.ado.fail("Command.Execute", 1, refusal(), {{-2147217900, u"refused", u"Provider", u"", 0}});
  EXPECT_FALSE(runner.Ejecutar1Comando(connection.get(), u"DELETE T", Engine::Oracle));
  EXPECT_EQ(taken(), together({command_lines("DELETE T"),
                               {"Report: -2147217900|refused|Provider|3|Ejecutar1Comando: DELETE T|refused"}}));
  EXPECT_TRUE(runner.Ejecutar1Comando(connection.get(), u"DELETE T", Engine::Oracle)) << "usable again";
}

TEST_F(OneCommandTest, ReportsAMissingConnection) {
  EXPECT_FALSE(runner.Ejecutar1Comando(nullptr, u"A", Engine::Jet));
  EXPECT_EQ(taken().back(), "Report: 91|Object variable or With block variable not set|QVRlib21|1|Ejecutar1Comando: A");
}

TEST_F(OneCommandTest, ReportsAWholeLongCommand) {
  thread.ado.fail("Command.Execute", 1, refusal());
  const Text command(5000, u'x');
  EXPECT_FALSE(runner.Ejecutar1Comando(connection.get(), command, Engine::Jet));
  ASSERT_EQ(thread.report.notices.size(), 1u);
  EXPECT_EQ(thread.report.notices[0].label, u"Ejecutar1Comando: " + command);
}

TEST_F(OneCommandTest, AReportThatCannotBeMadeIsAFalseResult) {
  thread.make_error_report = []() -> std::unique_ptr<services::ErrorReport> {
    throw RuntimeFailure(failure_number::kCannotCreateObject);
  };
  thread.ado.fail("Command.Execute", 1, refusal());
  EXPECT_FALSE(runner.Ejecutar1Comando(connection.get(), u"A", Engine::Jet));
}

TEST_F(OneCommandTest, UsuarioSegunMotorNamesTheAdministrator) {
  struct Row {
    Engine motor;
    TextView account;
  };
  constexpr Row kRows[] = {{Engine::Jet, u"Admin"}, {Engine::SqlServer, u"sa"}, {Engine::Oracle, u"System"},
                           {Engine::None, u""},     {Engine{4}, u""},           {Engine{-1}, u""},
                           {Engine{99}, u""},       {Engine{INT32_MAX}, u""},   {Engine{INT32_MIN}, u""}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(number_of(row.motor));
    EXPECT_EQ(runner.UsuarioSegunMotor(row.motor), Text(row.account));
  }
  EXPECT_TRUE(taken().empty());
}

}  // namespace
}  // namespace qvr::tests
