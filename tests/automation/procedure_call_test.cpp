// Stored procedures called by both kinds of host: what the procedure gets, what comes back, and how a failure is told.
#include "automation/family_component.h"
#include "automation/library.h"
#include "automation/procedures.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class ProcedureCall : public ProcedureCalls {
 protected:
  ProcedureCall() {
    database.run(L"create table Clientes(Id integer primary key, Nombre varchar(50))");
    database.define(L"Alta", {{L"@Nombre", ado::kVarWChar, ado::kInput, 50}, {L"@Id", ado::kInteger, ado::kOutput}},
                    {{L"insert into Clientes(Nombre) values(@Nombre)"},
                     {L"select max(Id) from Clientes where Nombre = @Nombre", 2}});
    database.define(L"Rechazo", {{L"@Dato", ado::kInteger, ado::kInputOutput}}, {{L"select 99", 1}, {L"select -4", 0}});
  }

  // False both early and late, with one box each; the texts of the boxes.
  std::wstring failed(IDispatch* connected, const wchar_t* procedure, const Var& parameters) {
    Person person;
    Var variable = parameters;
    EXPECT_FALSE(call_early(connected, procedure, &variable.raw()));
    EXPECT_FALSE(call_late(connected, procedure, Var::by_reference(variable)));
    EXPECT_EQ(describe(variable.raw()), describe(parameters.raw())) << "nothing comes back";
    EXPECT_EQ(person.boxes().size(), 2u);
    if (person.boxes().size() != 2) return L"";
    EXPECT_EQ(person.boxes()[0].text, person.boxes()[1].text);
    EXPECT_EQ(person.boxes()[0].title, L"QVRlib21");
    EXPECT_FALSE(person.boxes()[0].question);
    return person.boxes()[0].text;
  }
};

// The text of a box about a failure that has no caption of its own.
std::wstring report(const std::wstring& errors, const wchar_t* procedure) {
  return L"Error indeterminado\r\n\r\n" + errors + L"\r\n\r\nObjeto: " + procedure + L"\r\nM\u00e9todo: EjecutarProc";
}

TEST_F(ProcedureCall, PassesInputsAndGivesOutputsBack) {
  Var parameters = array_of({L"Ana", 0});
  EXPECT_TRUE(call_early(connection.get(), L"Alta", &parameters.raw()));
  EXPECT_EQ(describe(parameters.raw()), "VARIANT(0) {BSTR Ana; I4 1}");
  Var variable = array_of({L"Eva", Var()});
  EXPECT_TRUE(call_late(connection.get(), L"Alta", Var::by_reference(variable)));
  EXPECT_EQ(describe(variable.raw()), "VARIANT(0) {BSTR Eva; I4 2}");
  EXPECT_EQ(database.ask(L"select group_concat(Id || Nombre) from Clientes"), "1Ana,2Eva");
}

TEST_F(ProcedureCall, AReturnValueThatIsNotZeroLeavesTheArrayAlone) {
  expect_call(L"Rechazo", array_of({5}), false, "VARIANT(0) {I4 5}");
  expect_call(L"Rechazo", array_of({5}, 0, VT_I4), false, "I4(0) {I4 5}");
  EXPECT_EQ(traced(), Traces(12, u"QVRcfp.EjecutarProcSQL7: 5 The procedure did not return 0"));
}

TEST_F(ProcedureCall, AProcedureWithoutParameters) {
  database.define(L"Vaciar", {}, {{L"delete from Clientes"}});
  database.run(L"insert into Clientes(Nombre) values('Ana')");
  expect_call(L"Vaciar", array_of({}), true, "VARIANT(0) {}");
  EXPECT_EQ(database.ask(L"select count(*) from Clientes"), "0");
}

TEST_F(ProcedureCall, TheConnectionIsUsedAsItIsAndStaysOpen) {
  const LateAnswer begun = connection.call(L"BeginTrans");
  EXPECT_EQ(begun.result, S_OK);
  Var parameters = array_of({L"Ana", 0});
  EXPECT_TRUE(call_early(connection.get(), L"Alta", &parameters.raw()));
  EXPECT_EQ(connection.call(L"RollbackTrans").result, S_OK);
  EXPECT_EQ(database.ask(L"select count(*) from Clientes"), "0");
  EXPECT_EQ(describe(connection.get(L"State").value.raw()), "I4 1");
}

TEST_F(ProcedureCall, AsksAdoForNoMoreThanItNeeds) {
  const FaultyAdo log(L"");
  Var parameters = array_of({L"Ana", 0});
  EXPECT_TRUE(call_early(connection.get(), L"Alta", &parameters.raw()));
  EXPECT_EQ(log.calls(),
            "CreateCommand\nActiveConnection\nCommandText\nCommandType\nParameters.Refresh\n"
            "Parameter.Value\nParameter.Value\nExecute Alta\n");
}

TEST_F(ProcedureCall, OtherEnginesTouchNothing) {
  const FaultyAdo log(L"");
  const LateObject no_connection(L"QVRlib21.Ov");
  for (const int engine : {0, 1, 3}) {
    SCOPED_TRACE(engine);
    use(engine);
    const Person person;
    expect_call(L"Alta", array_of({L"Ana", 0}), false, "VARIANT(0) {BSTR Ana; I4 0}");
    EXPECT_FALSE(call_early(nullptr, L"", nullptr));
    EXPECT_FALSE(call_late(no_connection.get(), L"", 5));
    EXPECT_TRUE(person.boxes().empty());
  }
  EXPECT_EQ(log.calls(), "");
  EXPECT_EQ(traced(), Traces(24, u"QVRcfp.EjecutarProcSQL7: 5 The engine is not SQL Server"));
}

TEST_F(ProcedureCall, AnUnknownProcedureIsReported) {
  EXPECT_EQ(narrow(failed(connection.get(), L"NoExiste", array_of({1}))),
            narrow(report(L"Error -2147217839: The provider cannot tell the command's parameters. "
                          L"(Microsoft OLE DB Provider for ODBC Drivers)",
                          L"NoExiste")));
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.EjecutarProcSQL7: -2147217839 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: -2147217839 told by another component"}));
}

TEST_F(ProcedureCall, NothingOrAClosedConnectionIsReported) {
  EXPECT_EQ(failed(nullptr, L"Alta", array_of({1})),
            report(L"Error 91: Object variable or With block variable not set (QVRlib21)", L"Alta"));
  const LateObject closed(L"ADODB.Connection");
  EXPECT_EQ(failed(closed.get(), L"Alta", array_of({1})),
            report(L"Error 3709: The connection is closed, or not valid for this operation. (ADODB.Command)", L"Alta"));
  const LateObject other(L"QVRlib21.Ov");
  EXPECT_TRUE(failed(other.get(), L"Alta", array_of({1})).starts_with(L"Error indeterminado\r\n\r\nError 3001: "));
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.EjecutarProcSQL7: 91 Object variable or With block variable not set",
                              u"QVRcfp.EjecutarProcSQL7: 91 Object variable or With block variable not set",
                              u"QVRcfp.EjecutarProcSQL7: 3709 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3709 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3001 told by another component",
                              u"report_failure: -2147352570 Application-defined or object-defined error",
                              u"QVRcfp.EjecutarProcSQL7: 3001 told by another component",
                              u"report_failure: -2147352570 Application-defined or object-defined error"}));
}

TEST_F(ProcedureCall, AFailureInsideTheProcedureIsReportedWithWhatTheProviderSays) {
  database.define(L"Falla", {}, {{L"insert into NoExiste values(1)"}});
  const std::wstring text = failed(connection.get(), L"Falla", array_of({}));
  EXPECT_TRUE(text.find(L"NoExiste") != std::wstring::npos) << narrow(text);
  EXPECT_TRUE(text.ends_with(L"\r\n\r\nObjeto: Falla\r\nM\u00e9todo: EjecutarProc")) << narrow(text);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.EjecutarProcSQL7: -2147217900 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: -2147217900 told by another component"}));
}

TEST_F(ProcedureCall, ValuesThatDoNotFitAreReported) {
  const std::wstring conversion = report(
      L"Error 3421: The value does not fit the type it is meant for. (ADODB.Parameter)", L"Rechazo");
  EXPECT_EQ(failed(connection.get(), L"Rechazo", array_of({L"abc"})), conversion);
  const std::wstring position = report(
      L"Error 3265: The collection has no item of this name or position. (ADODB.Parameters)", L"Rechazo");
  EXPECT_EQ(failed(connection.get(), L"Rechazo", array_of({1, 2})), position);
  EXPECT_EQ(failed(connection.get(), L"Rechazo", array_of({1}, -3)), position);
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.EjecutarProcSQL7: 3421 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3421 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3265 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3265 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3265 told by another component",
                              u"QVRcfp.EjecutarProcSQL7: 3265 told by another component"}));
}

TEST_F(ProcedureCall, WhatIsNoListIsReported) {
  expect_any_traces();
  const std::wstring mismatch = report(L"Error 13: Type mismatch (QVRlib21)", L"Alta");
  const std::wstring subscript = report(L"Error 9: Subscript out of range (QVRlib21)", L"Alta");
  for (const Var& bad : {Var(5), Var(), Var(L"Ana"), Var::null(), Var::nothing()}) {
    SCOPED_TRACE(describe(bad.raw()));
    EXPECT_EQ(failed(connection.get(), L"Alta", bad), mismatch);
  }
  for (const Var& bad : {square_array(), no_array(), no_array(VT_BSTR)}) {
    SCOPED_TRACE(describe(bad.raw()));
    EXPECT_EQ(failed(connection.get(), L"Alta", bad), subscript);
  }
}

TEST_F(ProcedureCall, EveryRefusalOfAdoIsReportedOnceAndLeavesNothingBehind) {
  for (const wchar_t* where : {L"CreateCommand", L"ActiveConnection", L"CommandText", L"CommandType",
                               L"Parameters.Refresh", L"Parameter.Value:2", L"Execute"}) {
    SCOPED_TRACE(narrow(where));
    const FaultyAdo faulty(where);
    Person person;
    Var parameters = array_of({L"Ana", 0});
    EXPECT_FALSE(call_early(connection.get(), L"Alta", &parameters.raw()));
    EXPECT_EQ(describe(parameters.raw()), "VARIANT(0) {BSTR Ana; I4 0}");
    ASSERT_EQ(person.boxes().size(), 1u);
    EXPECT_TRUE(person.boxes()[0].text.ends_with(L"Objeto: Alta\r\nM\u00e9todo: EjecutarProc"));
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

TEST_F(ProcedureCall, TheFamilysReportTakesOverWhereItIsRegistered) {
  on_fresh_thread([] {
    FamilyComponent component(L"QVRServicios.InformeErrores", {L"Informar"}, [](auto&, auto&) {
      LateAnswer answer;
      answer.result = S_OK;
      return answer;
    });
    Person person;
    const LateObject object(L"QVRlib21.QVRcfp");
    object.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
    const LateAnswer called = object.call(L"EjecutarProcSQL7", {Var::nothing(), L"Alta", array_of({1})});
    EXPECT_EQ(describe(called.value.raw()), "BOOL false");
    EXPECT_TRUE(person.boxes().empty());
    const std::vector<std::string> expected{
        "Informar(I4 91, BSTR Object variable or With block variable not set, BSTR QVRlib21, I4 2, BSTR EjecutarProc: "
        "Alta, {BSTR Servidor no encontrado; BSTR Registro duplicado; BSTR Error indeterminado; BSTR M\u00e9todo; BSTR "
        "Objeto})"};
    EXPECT_EQ(component.calls(), expected);
  });
  EXPECT_EQ(traced(), (Traces{u"QVRcfp.EjecutarProcSQL7: 91 Object variable or With block variable not set"}));
}

}  // namespace
}  // namespace qvr::tests
