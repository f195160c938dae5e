// ADO's classes in all the states that a machine may have them in, and which calls reach ADO in which order.
#include "automation/arrays.h"
#include "automation/boxes.h"
#include "automation/database.h"
#include "automation/played_ado.h"
#include "automation/sink.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using Lines = std::vector<std::string>;

constexpr const wchar_t* kThreeCommands = L"a\r\nGO\r\nb\r\nGO\r\nc\r\nGO\r\n";

std::string run(const LateObject& runner, const wchar_t* commands = kThreeCommands) {
  return describe(runner.call(L"EjecutarComandos", {L"app", 2, commands, L"Data Source=x"}).value.raw());
}

// Every call of a run with three commands.
const Lines kThreeCommandsCalls{
    "new Connection1",
    "Connection1.ConnectionString = BSTR Data Source=x",
    "Connection1.Open(BSTR , BSTR , BSTR , I4 -1)",
    "Connection1.BeginTrans()",
    "new Command1",
    "set Command1.ActiveConnection = Connection1",
    "Command1.CommandType = I4 1",
    "Command1.CommandText = BSTR a",
    "Command1.CommandTimeout = I4 0",
    "Command1.Execute(ERROR -2147352572, ERROR -2147352572, I4 -1)",
    "new Command2",
    "set Command2.ActiveConnection = Connection1",
    "Command2.CommandType = I4 1",
    "Command2.CommandText = BSTR b",
    "Command2.CommandTimeout = I4 0",
    "Command2.Execute(ERROR -2147352572, ERROR -2147352572, I4 -1)",
    "new Command3",
    "set Command3.ActiveConnection = Connection1",
    "Command3.CommandType = I4 1",
    "Command3.CommandText = BSTR c",
    "Command3.CommandTimeout = I4 0",
    "Command3.Execute(ERROR -2147352572, ERROR -2147352572, I4 -1)",
    "Connection1.CommitTrans()",
    "Connection1.Close()",
};

TEST(CallsToAdo, OfARun) {
  PlayedAdo ado;
  const LateObject runner(L"QVRlib21.QVRScr");
  EXPECT_EQ(run(runner), "BOOL true");
  EXPECT_EQ(ado.calls(), kThreeCommandsCalls);
}

TEST(CallsToAdo, OfARunOnADatabase) {
  const Database database;
  const LateObject runner(L"QVRlib21.QVRScr");
  const FaultyAdo log(L"");
  const LateAnswer ran = runner.call(
      L"EjecutarComandos",
      {L"app", 2, L"create table T(N int)\r\nGO\r\ninsert into T values(1)\r\nGO\r\nselect N from T\r\nGO\r\n",
       database.connection_string()});
  EXPECT_EQ(describe(ran.value.raw()), "BOOL true");
  EXPECT_EQ(
      log.calls(),
      "CreateConnection\nConnectionString\nOpen\nBeginTrans\n"
      "CreateCommand\nActiveConnection\nCommandType\nCommandText\nCommandTimeout\nExecute create table T(N int)\n"
      "CreateCommand\nActiveConnection\nCommandType\nCommandText\nCommandTimeout\nExecute insert into T values(1)\n"
      "CreateCommand\nActiveConnection\nCommandType\nCommandText\nCommandTimeout\nExecute select N from T\n"
      "CommitTrans\nClose\n");
}

TEST(CallsToAdo, OfAProcedure) {
  PlayedAdo ado;
  const LateObject connection(L"ADODB.Connection"), cfp(L"QVRlib21.QVRcfp");
  cfp.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
  Var list = array_of({L"Ana", 5});
  const LateAnswer called = cfp.call(L"EjecutarProcSQL7", {connection.get(), L"Alta", Var::by_reference(list)});
  EXPECT_EQ(describe(called.value.raw()), "BOOL true");
  EXPECT_EQ(ado.calls(), (Lines{
                             "new Connection1",  // the test's own
                             "new Command1",
                             "set Command1.ActiveConnection = Connection1",
                             "Command1.CommandText = BSTR Alta",
                             "Command1.CommandType = I4 4",
                             "Command1.Parameters",
                             "Parameters1.Refresh()",
                             "Command1.Parameters",
                             "Parameters2.Item[I4 1]",
                             "Parameter1.Value = BSTR Ana",
                             "Command1.Parameters",
                             "Parameters3.Item[I4 2]",
                             "Parameter2.Value = I4 5",
                             "Command1.Execute(ERROR -2147352572, ERROR -2147352572, I4 -1)",
                             "Command1.Parameters",
                             "Parameters4.Item[I4 0]",
                             "Parameter3.Value",
                             "Command1.Parameters",
                             "Parameters5.Item[I4 1]",
                             "Parameter4.Value",
                             "Command1.Parameters",
                             "Parameters6.Item[I4 2]",
                             "Parameter5.Value",
                         }));
  EXPECT_EQ(describe(list.raw()), "VARIANT(0) {I4 0; I4 0}");
}

}  // namespace
}  // namespace qvr::tests
