// The two members that use the caller's ADO objects: neither raises an error when ADO fails.
#include <algorithm>

#include "connection/qvrcfp.h"
#include "dialect/dialect_fixture.h"
#include "support/describe.h"
#include "support/rows.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using dialect::ParameterRequest;
using tests::PrintTo;

// One call to ADO, by the name under which it can fail, and its line in the log.
struct Step {
  const char* name;
  std::string operation;
  int occurrence;
  std::string line;
};
using Steps = std::vector<Step>;

const Steps kProcedure = {
    {"new Command", "new Command", 2, "new Command"},  // the first is the test's own
    {"ActiveConnection", "Command.ActiveConnection", 1, "Command.ActiveConnection"},
    {"CommandText", "Command.CommandText", 1, "Command.CommandText: dbo.Alta"},
    {"CommandType", "Command.CommandType", 1, "Command.CommandType: 4"},
    {"Refresh", "Parameters.Refresh", 1, "Parameters.Refresh"},
    {"first element", "Parameters.Item.Value", 1, "Parameters.Item.Value: 1=Long 5"},
    {"second element", "Parameters.Item.Value", 2, "Parameters.Item.Value: 2=String Ana"},
    {"Execute", "Command.Execute", 1, "Command.Execute: dbo.Alta"},
    {"return value", "Parameters.Item.Value read", 1, "Parameters.Item.Value read: 0"},
    {"first output", "Parameters.Item.Value read", 2, "Parameters.Item.Value read: 1"},
    {"second output", "Parameters.Item.Value read", 3, "Parameters.Item.Value read: 2"},
};

const Steps kParameter = {
    {"new Parameter", "new Parameter", 1, "new Parameter"},
    {"Type", "Parameter.Type", 1, "Parameter.Type: 200"},
    {"Size", "Parameter.Size", 1, "Parameter.Size: 100"},
    {"Name", "Parameter.Name", 1, "Parameter.Name: @p"},
    {"Direction", "Parameter.Direction", 1, "Parameter.Direction: 2"},
    {"Value", "Parameter.Value", 1, "Parameter.Value: String Ana"},
    {"Append", "Parameters.Append", 1, "Parameters.Append"},
};

// The lines up to the step that fails, which is logged as well, and the release of what was made by the first one.
Lines lines_until(const Steps& steps, std::size_t failing, const std::string& release) {
  Lines lines;
  for (std::size_t i = 0; i <= failing && i < steps.size(); ++i) lines.push_back(steps[i].line);
  if (failing > 0) lines.push_back(release);
  return lines;
}

Lines lines_until(const Steps& steps, const Step& failing, const std::string& release) {
  const auto found = std::ranges::find(steps, failing.line, &Step::line);
  return lines_until(steps, static_cast<std::size_t>(found - steps.begin()), release);
}

const FailureDetail kRefusal{-2147217900, u"refused", u"Provider"};

ConnectionParameters parameters_with(Engine engine) {
  ConnectionParameters parameters;
  parameters.MotorBD = engine;
  return parameters;
}

// A thread, an object of the engine, and one list of parameters for a procedure.
struct Setting {
  explicit Setting(Engine engine, TextView language = u"0") {
    thread.load_language(language);
    cfp.Asignar(u"id", parameters_with(engine));
    thread.ado.procedure_outputs = {{0, 0}, {1, 7}, {2, u"Eva"}};
    connection = thread.ado.new_connection();
    command = thread.ado.new_command();
    thread.log.take();
  }
  bool call(services::AdoConnection* used) { return cfp.EjecutarProcSQL7(used, u"dbo.Alta", parameters); }
  bool append(TextView type = u"NVARCHAR") {
    return cfp.AgregarParametroADO(command.get(), {type, u"@p", u"Ana", 50, 2});
  }
  std::string first_parameter() { return describe(parameters.as<Array>()->items[0]); }

  TestThread thread;
  QVRcfp cfp;
  Value parameters = list({5, u"Ana"});
  std::unique_ptr<services::AdoConnection> connection;
  std::unique_ptr<services::AdoCommand> command;
};

TEST(QVRcfpProcedure, CallsSqlServerAndGivesTheParametersBack) {
  Setting setting(Engine::SqlServer);
  EXPECT_TRUE(setting.call(setting.connection.get()));
  EXPECT_EQ(setting.thread.log.take(), lines_until(kProcedure, kProcedure.size(), "Command released"));
  EXPECT_EQ(setting.first_parameter(), "Long 7");
}

TEST(QVRcfpProcedure, OtherEnginesDoNotTouchTheConnection) {
  for (const Engine engine : {Engine::Jet, Engine::Oracle, kNoEngine, Engine{99}}) {
    SCOPED_TRACE(number_of(engine));
    Setting setting(engine);
    EXPECT_FALSE(setting.call(setting.connection.get()));
    EXPECT_EQ(setting.thread.log.take(), Lines());
  }
  TestThread thread;
  Value parameters;
  EXPECT_FALSE(QVRcfp().EjecutarProcSQL7(nullptr, u"p", parameters));
  EXPECT_EQ(traced(), Traces(5, u"QVRcfp.EjecutarProcSQL7: 5 The engine is not SQL Server"));
}

TEST(QVRcfpProcedure, AnotherReturnValueIsFalseWithoutAReport) {
  Setting setting(Engine::SqlServer);
  setting.thread.ado.procedure_outputs[0] = -1;
  EXPECT_FALSE(setting.call(setting.connection.get()));
  EXPECT_EQ(setting.thread.log.take(), lines_until(kProcedure, 8, "Command released"));
  EXPECT_EQ(setting.first_parameter(), "Long 5");
  EXPECT_EQ(traced(), Traces{u"QVRcfp.EjecutarProcSQL7: 5 The procedure did not return 0"});
}

using RefusedProcedure = Rows<::testing::Test, Step>;

TEST_P(RefusedProcedure, IsReported) {
  Setting setting(Engine::SqlServer);
  setting.thread.ado.fail(GetParam().operation, GetParam().occurrence, kRefusal,
                          {{-2147217900, u"refused", u"Provider", u"42000", 2812}, {1, u"also", u"", u"", 0}});
  EXPECT_FALSE(setting.call(setting.connection.get()));
  Lines expected = lines_until(kProcedure, GetParam(), "Command released");
  expected.push_back("Report: -2147217900|refused|Provider|2|EjecutarProc|refused|also");
  EXPECT_EQ(setting.thread.log.take(), expected);
  EXPECT_EQ(setting.first_parameter(), "Long 5") << "nothing is given back by halves";
  const services::ErrorNotice& notice = setting.thread.report.notices.at(0);
  EXPECT_EQ(notice.object, u"dbo.Alta");
  EXPECT_EQ(notice.captions.object, u"Objeto");
  EXPECT_EQ(notice.captions.method, u"M\u00e9todo");
  EXPECT_EQ(notice.captions.unknown_error, u"Error indeterminado");
  EXPECT_EQ(notice.captions.duplicate_record, u"Registro duplicado");
  EXPECT_EQ(notice.captions.server_not_found, u"Servidor no encontrado");
  EXPECT_EQ(traced(), Traces{u"QVRcfp.EjecutarProcSQL7: -2147217900 told by another component"});
}

INSTANTIATE_TEST_SUITE_P(, RefusedProcedure, ::testing::ValuesIn(kProcedure), row_name);

TEST(QVRcfpProcedure, WhatIsNotAdosIsReportedToo) {
  struct Row {
    const char* name;
    Value parameters;
    bool connected;
    std::string report;
  };
  const Row kRows[] = {
      {"no connection", list({5}), false,
       "Report: 91|Object variable or With block variable not set|QVRlib21|2|EjecutarProc"},
      {"no list", u"5", true, "Report: 13|Type mismatch|QVRlib21|2|EjecutarProc"},
      {"two dimensions", square({5}), true, "Report: 9|Subscript out of range|QVRlib21|2|EjecutarProc"},
      {"an index too high", list({5}, INT32_MAX), true, "Report: 6|Overflow|QVRlib21|2|EjecutarProc"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    Setting setting(Engine::SqlServer);
    setting.parameters = row.parameters;
    EXPECT_FALSE(setting.call(row.connected ? setting.connection.get() : nullptr));
    const Lines log = setting.thread.log.take();
    ASSERT_GE(log.size(), 2U);
    EXPECT_EQ(log[log.size() - 2], "Command released");
    EXPECT_EQ(log.back(), row.report);
  }
  EXPECT_EQ(traced(),
            (Traces{u"QVRcfp.EjecutarProcSQL7: 91 Object variable or With block variable not set",
                    u"QVRcfp.EjecutarProcSQL7: 13 Type mismatch", u"QVRcfp.EjecutarProcSQL7: 9 Subscript out of range",
                    u"QVRcfp.EjecutarProcSQL7: 6 Overflow"}));
}

TEST(QVRcfpProcedure, AReportThatFailsIsStillFalse) {
  Setting setting(Engine::SqlServer);
  setting.thread.report.fails = true;
  setting.thread.ado.fail("Command.Execute", 1, kRefusal);
  EXPECT_FALSE(setting.call(setting.connection.get()));
  EXPECT_EQ(setting.thread.report.notices.size(), 1U);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.EjecutarProcSQL7: -2147217900 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 429 ActiveX component can't create object"}));
}

TEST(QVRcfpParameter, IsAppendedWithTheTypeOfTheEngine) {
  Setting setting(Engine::Oracle);
  EXPECT_TRUE(setting.append());
  EXPECT_EQ(setting.thread.log.take(), lines_until(kParameter, kParameter.size(), "Parameter released"));
}

TEST(QVRcfpParameter, AnObjectWithoutParametersAppendsNone) {
  Setting setting(Engine::Oracle);
  const QVRcfp fresh;
  EXPECT_FALSE(fresh.AgregarParametroADO(setting.command.get(), {u"INT", u"@p", Missing{}}));
  EXPECT_FALSE(fresh.AgregarParametroADO(setting.command.get(), {u"no type", u"@p", Missing{}}));
  EXPECT_EQ(setting.thread.log.take(), Lines());
  QVRcfp other;
  other.Asignar(u"id", parameters_with(kNoEngine));
  EXPECT_TRUE(other.AgregarParametroADO(setting.command.get(), {u"no type", u"@p", Missing{}}));
  EXPECT_EQ(traced(), Traces(2, u"QVRcfp.AgregarParametroADO: 91 No connection parameters were read or assigned"));
}

TEST(QVRcfpParameter, AnUnexpectedTypeIsToldInTheUsersLanguage) {
  struct Row {
    TextView language;
    std::string box;
  };
  const Row kRows[] = {{u"0", "Box OK: Tipo inesperado en AgregarParametroADO: @p (TEXT)"},
                       {u"1", "Box OK: Unexpected type in AgregarParametroADO: @p (TEXT)"},
                       {u"3", "Box OK: Type inattendu dans AgregarParametroADO: @p (TEXT)"}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.box);
    Setting setting(Engine::SqlServer, row.language);
    setting.thread.boxes.answer(BoxAnswer::Ok);
    EXPECT_FALSE(setting.append(u"TEXT"));
    EXPECT_EQ(setting.thread.log.take(), (Lines{"new Parameter", row.box, "Parameter released"}));
  }
}

using RefusedParameter = Rows<::testing::Test, Step>;

TEST_P(RefusedParameter, IsShownInTheUsersLanguageWhenItIsImproperlyDefined) {
  struct Words {
    TextView language;
    std::string object, method, error;
  };
  const Words kWords[] = {{u"0", "Objeto", "M\u00e9todo", "Error"},
                          {u"1", "Object", "Method", "Error"},
                          {u"3", "Objet", "M\u00e9thode", "Erreur"}};
  for (const Words& words : kWords) {
    SCOPED_TRACE(words.object);
    Setting setting(Engine::Oracle, words.language);
    setting.thread.ado.fail(GetParam().operation, 1, {3708, u"Mal definido", u"ADODB"});
    setting.thread.boxes.answer(BoxAnswer::Ok);
    EXPECT_FALSE(setting.append());
    Lines expected = lines_until(kParameter, GetParam(), "Parameter released");
    expected.push_back("Box OK: " + words.object + ": QVRcfp\r\n" + words.method +
                       ": AgregarParametroADO: @p(NVARCHAR)\r\n" + words.error + " 3708: Mal definido");
    EXPECT_EQ(setting.thread.log.take(), expected);
  }
  EXPECT_EQ(traced(), Traces(3, u"QVRcfp.AgregarParametroADO: 3708 told by another component"));
}

TEST_P(RefusedParameter, IsFalseWithoutABoxForAnyOtherReason) {
  for (const std::int32_t number : {-2147217900, 3707, 3709, 91, 429}) {
    SCOPED_TRACE(number);
    Setting setting(Engine::Oracle);
    setting.thread.ado.fail(GetParam().operation, 1, {number, u"refused", u"ADODB"});
    EXPECT_FALSE(setting.append());
    EXPECT_EQ(setting.thread.log.take(), lines_until(kParameter, GetParam(), "Parameter released"));
    EXPECT_EQ(traced(),
              Traces{join({u"QVRcfp.AgregarParametroADO: ", decimal(number), u" told by another component"})});
  }
}

INSTANTIATE_TEST_SUITE_P(, RefusedParameter, ::testing::ValuesIn(kParameter), row_name);

TEST(QVRcfpParameter, WithoutACommandItIsFalse) {
  for (const Engine engine : {Engine::Jet, Engine::SqlServer, Engine::Oracle}) {
    Setting setting(engine);
    EXPECT_FALSE(setting.cfp.AgregarParametroADO(nullptr, {u"INT", u"@p", Missing{}}));
  }
  Setting setting(Engine::Oracle);
  EXPECT_FALSE(setting.cfp.AgregarParametroADO(nullptr, {u"NVARCHAR", u"@p", u"x", INT32_MAX})) << "the size overflows";
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.AgregarParametroADO: 91 Object variable or With block variable not set",
                              u"QVRcfp.AgregarParametroADO: 91 Object variable or With block variable not set",
                              u"QVRcfp.AgregarParametroADO: 91 Object variable or With block variable not set",
                              u"QVRcfp.AgregarParametroADO: 6 Overflow"}));
}

TEST(QVRcfpParameter, ABoxThatCannotBeShownIsStillFalse) {
  Setting setting(Engine::Oracle);
  setting.thread.boxes.fail_next();
  EXPECT_FALSE(setting.append(u"TEXT"));
  setting.thread.ado.fail("Parameter.Type", 1, {3708, u"Mal definido", u"ADODB"});
  setting.thread.boxes.fail_next();
  EXPECT_FALSE(setting.append());
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.AgregarParametroADO: 5 no box today",
                              u"QVRcfp.AgregarParametroADO: 3708 told by another component",
                              u"QVRcfp.AgregarParametroADO: 5 no box today"}));
}

}  // namespace
}  // namespace qvr::tests
