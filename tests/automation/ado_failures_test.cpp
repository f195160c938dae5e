// Every call to ADO fails once: one outcome, one Terminado, nothing left open, and the object works again.
#include <algorithm>

#include "automation/boxes.h"
#include "automation/database.h"
#include "automation/library.h"
#include "automation/parameter_host.h"
#include "automation/sink.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

struct Failing {
  const wchar_t* where;
  const char* calls;  // what reached ADO, in order
  std::size_t boxes;
  bool outcome;
  Traces traces = {};
};

const Text kNoConnection = u"QVRScr.EjecutarComandos: 429 ActiveX component can't create object",
           kNoCommand = u"QVRScr.Ejecutar1Comando: 429 ActiveX component can't create object",
           kRefusedRun = u"QVRScr.EjecutarComandos: -2147467259 told by another component",
           kRefusedCommand = u"QVRScr.Ejecutar1Comando: -2147467259 told by another component",
           kStillInTransaction = u"QVRScr.EjecutarComandos: 3246 told by another component";

std::ostream& operator<<(std::ostream& out, const Failing& row) { return out << narrow(row.where); }

class AdoFailures : public testing::TestWithParam<Failing> {};

constexpr const wchar_t* kCommands = L"create table T(N int)\r\nGO\r\ninsert into T values(1)\r\nGO\r\n";

TEST_P(AdoFailures, EndTheRunInOrder) {
  const Failing& row = GetParam();
  Database database;
  LateObject runner(L"QVRlib21.QVRScr");
  {
    Connected connected(runner);
    Person person(IDNO);
    FaultyAdo faulty(row.where);
    const LateAnswer ran = runner.call(L"EjecutarComandos", {L"", 2, kCommands, database.connection_string()});
    EXPECT_EQ(describe(ran.value.raw()), row.outcome ? "BOOL true" : "BOOL false");
    EXPECT_EQ(person.boxes().size(), row.boxes);
    EXPECT_EQ(std::ranges::count_if(connected.events(), [](const auto& e) { return e.starts_with("Terminado"); }), 1);
    EXPECT_EQ(connected.events().back(), row.outcome ? "Terminado BOOL* true" : "Terminado BOOL* false");
    std::string calls;
    for (const char* name : {"Open", "BeginTrans", "CommitTrans", "RollbackTrans", "Close"}) {
      const std::string all = "\n" + faulty.calls();
      for (auto at = all.find("\n" + std::string(name)); at != std::string::npos;
           at = all.find("\n" + std::string(name), at + 1)) {
        calls += std::string(name) + " ";
      }
    }
    EXPECT_EQ(calls, row.calls) << faulty.calls();
    EXPECT_EQ(traced(), row.traces);
    EXPECT_EQ(test_ado().can_unload(), S_OK) << "an ADO object was left behind";
  }
  EXPECT_EQ(describe(runner
                         .call(L"EjecutarComandos",
                               {L"", 2, L"create table Later(N int)\r\nGO\r\n", database.connection_string()})
                         .value.raw()),
            "BOOL true");
}

INSTANTIATE_TEST_SUITE_P(
    Each, AdoFailures,
    testing::Values(
        Failing{L"CreateConnection", "", 1, false, {kNoConnection}},
        Failing{L"ConnectionString", "", 1, false, {kRefusedRun}}, Failing{L"Open", "Open ", 1, false, {kRefusedRun}},
        Failing{L"BeginTrans", "Open BeginTrans Close ", 1, false, {kRefusedRun}},
        Failing{L"CreateCommand:1", "Open BeginTrans RollbackTrans Close ", 2, false, {kNoCommand}},
        Failing{L"ActiveConnection:2", "Open BeginTrans RollbackTrans Close ", 2, false, {kRefusedCommand}},
        Failing{L"CommandText:1", "Open BeginTrans RollbackTrans Close ", 2, false, {kRefusedCommand}},
        Failing{L"Execute:1", "Open BeginTrans RollbackTrans Close ", 2, false, {kRefusedCommand}},
        Failing{L"Execute:2", "Open BeginTrans RollbackTrans Close ", 2, false, {kRefusedCommand}},
        Failing{L"CommitTrans", "Open BeginTrans CommitTrans RollbackTrans Close ", 1, false, {kRefusedRun}},
        Failing{L"Close:1", "Open BeginTrans CommitTrans Close Close ", 1, false, {kRefusedRun}},
        Failing{L"Execute:2,RollbackTrans",
                "Open BeginTrans RollbackTrans Close ",
                3,
                false,
                {kRefusedCommand, kRefusedRun, kStillInTransaction}},
        Failing{L"", "Open BeginTrans CommitTrans Close ", 0, true}),
    [](const auto& row) {
      std::string name = narrow(row.param.where);
      std::ranges::replace_if(
          name, [](char c) { return c == ':' || c == ','; }, '_');
      return name.empty() ? "Nowhere" : name;
    });

TEST(AdoMissing, AnUnregisteredAdoIsReportedAndTheRunnerGoesOnWorking) {
  Database database;
  LateObject runner(L"QVRlib21.QVRScr");
  Connected connected(runner);
  ASSERT_EQ(test_ado().unregister_it(), S_OK);
  Person person;
  const LateAnswer ran = runner.call(L"EjecutarComandos", {L"", 2, kCommands, database.connection_string()});
  ASSERT_EQ(test_ado().register_it(), S_OK);
  EXPECT_EQ(describe(ran.value.raw()), "BOOL false");
  ASSERT_EQ(person.boxes().size(), 1u);
  EXPECT_EQ(person.boxes()[0].text,
            L"Error indeterminado\r\n\r\nError 429: ActiveX component can't create object (QVRlib21)\r\n\r\n"
            L"M\u00e9todo: EjecutarComandos");
  EXPECT_EQ(connected.events(), std::vector<std::string>{"Terminado BOOL* false"});
  EXPECT_EQ(describe(runner.call(L"EjecutarComandos", {L"", 2, kCommands, database.connection_string()}).value.raw()),
            "BOOL true");
  EXPECT_EQ(traced(), (Traces{u"QVRScr.EjecutarComandos: 429 ActiveX component can't create object"}));
}

// Run in a process of its own: the signatures are read by the first late-bound call of a process.
TEST(WithoutAdo, MembersWorkAlthoughAdosTypesCannotBeRead) {
  ASSERT_EQ(test_ado().unregister_it(), S_OK);
  {
    const LateObject runner(L"QVRlib21.QVRScr");
    Person person;
    const LateAnswer account = runner.call(L"UsuarioSegunMotor", {3});
    const LateAnswer nothing = runner.call(L"Ejecutar1Comando", {static_cast<IDispatch*>(nullptr), L"select 1", 2});
    const LateAnswer wrong = runner.call(L"Ejecutar1Comando", {L"no object", L"select 1", 2});
    EXPECT_EQ(describe(account.value.raw()), "BSTR System");
    EXPECT_EQ(describe(nothing.value.raw()), "BOOL false");
    EXPECT_EQ(wrong.result, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(person.boxes().size(), 1u);
    const LateObject cfp(L"QVRlib21.QVRcfp");
    EXPECT_EQ(describe(cfp.call(L"sqlTOP", {5}).value.raw()), "BSTR ");
    EXPECT_EQ(describe(cfp.call(L"AgregarParametroADO", {Var::nothing(), L"INT", L"@p"}).value.raw()), "BOOL false");
    EXPECT_EQ(describe(cfp.call(L"EjecutarProcSQL7", {Var::nothing(), L"p", L"no array"}).value.raw()), "BOOL false");
    EXPECT_EQ(person.boxes().size(), 1u);
    EXPECT_EQ(traced(), (Traces{u"QVRScr.Ejecutar1Comando: 429 ActiveX component can't create object",
                                u"QVRScr.Ejecutar1Comando: -2147352571 The late-bound call was refused",
                                u"QVRcfp.AgregarParametroADO: 91 No connection parameters were read or assigned",
                                u"QVRcfp.EjecutarProcSQL7: 5 The engine is not SQL Server"}));
  }
  ASSERT_EQ(test_ado().register_it(), S_OK);
}

// The signatures are read while ADO's type library is missing; ADO itself is there when the parameter is made.
TEST(WithoutAdo, ADirectionIsANumberAlthoughItsTypeCannotBeRead) {
  ASSERT_EQ(test_ado().unregister_it(), S_OK);
  const ParameterHost host;
  host.use(2);
  ASSERT_EQ(test_ado().register_it(), S_OK);
  for (const Var& direction : {Var(3), Var(L"3"), Var(3.0), Var(3).as(VT_I2)}) {
    const LateObject command(L"ADODB.Command");
    EXPECT_EQ(host.append_late(command.get(), {.type = L"INT", .direction = direction}), "BOOL true");
    EXPECT_EQ(described_parameter(command, 0), "@p: type 3, size 0, precision 10, scale 0, direction 3, I4 5");
  }
  const LateObject command(L"ADODB.Command");
  const LateAnswer given = host.object().call(L"AgregarParametroADO", {command.get(), L"INT", L"@p"});
  EXPECT_EQ(describe(given.value.raw()), "BOOL true");
  EXPECT_EQ(described_parameter(command, 0), "@p: type 3, size 0, precision 10, scale 0, direction 1, Empty");
  const LateAnswer text = host.object().call(L"AgregarParametroADO", {command.get(), L"INT", L"@p", 1, 0, L"a"});
  EXPECT_EQ(text.result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(text.wrong_argument, 0u);
  EXPECT_EQ(traced(), Traces{u"QVRcfp.AgregarParametroADO: -2147352571 The late-bound call was refused"});
}

TEST(AdoRefusals, ConnectionStringsThatCannotServe) {
  LateObject runner(L"QVRlib21.QVRScr");
  for (const wchar_t* refused :
       {L"", L"Provider=NoSuchProvider;Data Source=x;", L"Provider=MSDASQL;Data Source=NoSuchDsn;",
        L"Provider=MSDASQL;Extended Properties=\"DRIVER={SQLite3};Database=/no/such/folder/x.db;\""}) {
    SCOPED_TRACE(narrow(refused));
    Connected connected(runner);
    Person person;
    EXPECT_EQ(describe(runner.call(L"EjecutarComandos", {L"", 2, kCommands, refused}).value.raw()), "BOOL false");
    ASSERT_EQ(person.boxes().size(), 1u);
    EXPECT_EQ(person.boxes()[0].text.find(L"Provider="), std::wstring::npos) << "whoever sits there sees it";
    EXPECT_EQ(connected.events(), std::vector<std::string>{"Terminado BOOL* false"});
  }
  EXPECT_EQ(traced(), (Traces{u"QVRScr.EjecutarComandos: -2147467259 told by another component",
                              u"QVRScr.EjecutarComandos: 3706 told by another component",
                              u"QVRScr.EjecutarComandos: -2147467259 told by another component",
                              u"QVRScr.EjecutarComandos: -2147467259 told by another component"}));
}

}  // namespace
}  // namespace qvr::tests
