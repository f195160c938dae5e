#include "script/script_fixture.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

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
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(OneCommandTest, ReportsAMissingConnection) {
  EXPECT_FALSE(runner.Ejecutar1Comando(nullptr, u"A", Engine::Jet));
  EXPECT_EQ(taken().back(), "Report: 91|Object variable or With block variable not set|QVRlib21|1|Ejecutar1Comando: A");
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: 91 Object variable or With block variable not set"});
}

TEST_F(OneCommandTest, ReportsAWholeLongCommand) {
  thread.ado.fail("Command.Execute", 1, refusal());
  const Text command(5000, u'x');
  EXPECT_FALSE(runner.Ejecutar1Comando(connection.get(), command, Engine::Jet));
  ASSERT_EQ(thread.report.notices.size(), 1u);
  EXPECT_EQ(thread.report.notices[0].label, u"Ejecutar1Comando: " + command);
  EXPECT_EQ(traced(), Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component"});
}

TEST_F(OneCommandTest, AReportThatCannotBeMadeIsAFalseResult) {
  thread.make_error_report = []() -> std::unique_ptr<services::ErrorReport> {
    throw RuntimeFailure(failure_number::kCannotCreateObject);
  };
  thread.ado.fail("Command.Execute", 1, refusal());
  EXPECT_FALSE(runner.Ejecutar1Comando(connection.get(), u"A", Engine::Jet));
  EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: -2147217900 told by another component",
                              u"QVRScr.Ejecutar1Comando: 429 ActiveX component can't create object"}));
}

struct Administrator {
  const char* name;
  Engine motor;
  TextView account;
};

constexpr Administrator kAdministrators[] = {
    {"Jet", Engine::Jet, u"Admin"},        {"SQL Server", Engine::SqlServer, u"sa"},
    {"Oracle", Engine::Oracle, u"System"}, {"none", Engine::None, u""},
    {"unknown", Engine{4}, u""},           {"below zero", Engine{-1}, u""},
    {"far away", Engine{99}, u""},         {"greatest", Engine{INT32_MAX}, u""},
    {"least", Engine{INT32_MIN}, u""},
};

using UsuarioSegunMotor = Rows<OneCommandTest, Administrator>;

TEST_P(UsuarioSegunMotor, NamesTheAdministratorWithoutTheDatabase) {
  EXPECT_EQ(runner.UsuarioSegunMotor(GetParam().motor), Text(GetParam().account));
  EXPECT_TRUE(taken().empty());
}

INSTANTIATE_TEST_SUITE_P(, UsuarioSegunMotor, testing::ValuesIn(kAdministrators), row_name);

}  // namespace
}  // namespace qvr::tests
