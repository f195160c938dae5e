// Stored procedures called by both kinds of host: what the procedure gets, what comes back, and how a failure is told.
#include "automation/library.h"
#include "servers/procedures/server_procedures.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class ProcedureCall : public ServerProcedures {
 protected:
  ProcedureCall() {
    make_table(L"clientes", {L"id int auto_increment primary key, nombre varchar(50)",
                             L"id serial primary key, nombre varchar(50)"});
    define(L"alta", L"in p_nombre varchar(50), out p_id int",
           L"insert into clientes(nombre) values(p_nombre); select max(id) into p_id from clientes;");
    define(L"rechazo", L"inout p_dato int", L"select 99 into p_dato; select -4 into r;");
  }

  std::string clientes() const { return database.ask(L"select count(*) from clientes"); }
};

TEST_F(ProcedureCall, PassesInputsAndGivesOutputsBack) {
  Var parameters = array_of({L"Ana", 0});
  EXPECT_TRUE(call_early(connection.get(), L"alta", &parameters.raw()));
  EXPECT_EQ(describe(parameters.raw()), "VARIANT(0) {BSTR Ana; I4 1}");
  Var variable = array_of({L"Eva", Var()});
  EXPECT_TRUE(call_late(connection.get(), L"alta", Var::by_reference(variable)));
  EXPECT_EQ(describe(variable.raw()), "VARIANT(0) {BSTR Eva; I4 2}");
  EXPECT_EQ(database.ask(L"select max(concat(id, nombre)) from clientes"), "2Eva");
}

TEST_F(ProcedureCall, AReturnValueThatIsNotZeroLeavesTheArrayAlone) {
  expect_call(L"rechazo", array_of({5}), false, "VARIANT(0) {I4 5}");
  expect_call(L"rechazo", array_of({5}, 0, VT_I4), false, "I4(0) {I4 5}");
  EXPECT_EQ(traced(), Traces(12, u"QVRcfp.EjecutarProcSQL7: 5 The procedure did not return 0"));
}

TEST_F(ProcedureCall, AProcedureWithoutParameters) {
  define(L"vaciar", L"", L"delete from clientes;");
  run(L"insert into clientes(nombre) values('Ana')");
  expect_call(L"vaciar", array_of({}), true, "VARIANT(0) {}");
  EXPECT_EQ(clientes(), "0");
}

TEST_F(ProcedureCall, TheConnectionIsUsedAsItIsAndStaysOpen) {
  const LateAnswer begun = connection.call(L"BeginTrans");
  EXPECT_EQ(begun.result, S_OK);
  Var parameters = array_of({L"Ana", 0});
  EXPECT_TRUE(call_early(connection.get(), L"alta", &parameters.raw()));
  EXPECT_EQ(connection.call(L"RollbackTrans").result, S_OK);
  EXPECT_EQ(clientes(), "0");
  EXPECT_EQ(describe(connection.get(L"State").value.raw()), "I4 1");
}

TEST_F(ProcedureCall, AsksAdoForNoMoreThanItNeeds) {
  const FaultyAdo log(L"");
  Var parameters = array_of({L"Ana", 0});
  EXPECT_TRUE(call_early(connection.get(), L"alta", &parameters.raw()));
  EXPECT_EQ(log.calls(),
            "CreateCommand\nActiveConnection\nCommandText\nCommandType\nParameters.Refresh\n"
            "Parameter.Value\nParameter.Value\nExecute alta\n");
}

TEST_F(ProcedureCall, AnUnknownProcedureIsReported) {
  EXPECT_EQ(narrow(failed(connection.get(), L"noexiste", array_of({1}))),
            narrow(procedure_report(L"Error -2147217839: The provider cannot tell the command's parameters. "
                                    L"(Microsoft OLE DB Provider for ODBC Drivers)",
                                    L"noexiste")));
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.EjecutarProcSQL7: -2147217839 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: -2147217839 told by another component"}));
}

TEST_F(ProcedureCall, AFailureInsideTheProcedureIsReportedWithWhatTheServerSays) {
  expect_any_traces();  // the number is the driver's
  define(L"falla", L"", L"insert into noexiste values(1);");
  const std::wstring text = failed(connection.get(), L"falla", array_of({}));
  EXPECT_TRUE(text.find(L"noexiste") != std::wstring::npos) << narrow(text);
  EXPECT_TRUE(
      text.ends_with(L" (Microsoft OLE DB Provider for ODBC Drivers)\r\n\r\nObjeto: falla\r\nM\u00e9todo: "
                     L"EjecutarProc"))
      << narrow(text);
}

TEST_F(ProcedureCall, ValuesThatDoNotFitAreReported) {
  const std::wstring conversion = procedure_report(
      L"Error 3421: The value does not fit the type it is meant for. (ADODB.Parameter)", L"rechazo");
  EXPECT_EQ(failed(connection.get(), L"rechazo", array_of({L"abc"})), conversion);
  const std::wstring position = procedure_report(
      L"Error 3265: The collection has no item of this name or position. (ADODB.Parameters)", L"rechazo");
  EXPECT_EQ(failed(connection.get(), L"rechazo", array_of({1, 2})), position);
  EXPECT_EQ(failed(connection.get(), L"rechazo", array_of({1}, -3)), position);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.EjecutarProcSQL7: 3421 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3421 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3265 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3265 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3265 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3265 told by another component"}));
}

TEST_F(ProcedureCall, WhatIsNoListIsReported) {
  expect_any_traces();
  const std::wstring mismatch = procedure_report(L"Error 13: Type mismatch (QVRlib21)", L"alta");
  const std::wstring subscript = procedure_report(L"Error 9: Subscript out of range (QVRlib21)", L"alta");
  for (const Var& bad : {Var(5), Var(), Var(L"Ana"), Var::null(), Var::nothing()}) {
    SCOPED_TRACE(describe(bad.raw()));
    EXPECT_EQ(failed(connection.get(), L"alta", bad), mismatch);
  }
  for (const Var& bad : {square_array(), no_array(), no_array(VT_BSTR)}) {
    SCOPED_TRACE(describe(bad.raw()));
    EXPECT_EQ(failed(connection.get(), L"alta", bad), subscript);
  }
}

TEST_F(ProcedureCall, EveryRefusalOfAdoIsReportedOnceAndLeavesNothingBehind) {
  for (const wchar_t* where : {L"CreateCommand", L"ActiveConnection", L"CommandText", L"CommandType",
                               L"Parameters.Refresh", L"Parameter.Value:2", L"Execute"}) {
    SCOPED_TRACE(narrow(where));
    const FaultyAdo faulty(where);
    Person person;
    Var parameters = array_of({L"Ana", 0});
    EXPECT_FALSE(call_early(connection.get(), L"alta", &parameters.raw()));
    EXPECT_EQ(describe(parameters.raw()), "VARIANT(0) {BSTR Ana; I4 0}");
    ASSERT_EQ(person.boxes().size(), 1u);
    EXPECT_TRUE(person.boxes()[0].text.ends_with(L"Objeto: alta\r\nM\u00e9todo: EjecutarProc"));
  }
  connection = LateObject(L"QVRlib21.Ov");
  EXPECT_EQ(test_ado().can_unload(), S_OK) << "an ADO object was left behind";
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.EjecutarProcSQL7: 429 ActiveX component can't create object",
                              u"QVRcfp.EjecutarProcSQL7: -2147467259 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: -2147467259 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: -2147467259 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: -2147467259 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: -2147467259 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: -2147467259 told by another component"}));
}

}  // namespace
}  // namespace qvr::tests
