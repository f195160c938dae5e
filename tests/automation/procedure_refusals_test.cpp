// Calls of stored procedures that come to no procedure: the database behind the connection has none.
#include "automation/family_component.h"
#include "automation/procedures.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

class ProcedureRefusal : public ProcedureCalls {
 protected:
  ProcedureRefusal() { connection = database.open(); }

  Database database;
};

TEST_F(ProcedureRefusal, OtherEnginesTouchNothing) {
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

TEST_F(ProcedureRefusal, NothingOrAClosedConnectionIsReported) {
  EXPECT_EQ(failed(nullptr, L"Alta", array_of({1})),
            procedure_report(L"Error 91: Object variable or With block variable not set (QVRlib21)", L"Alta"));
  const LateObject closed(L"ADODB.Connection");
  EXPECT_EQ(failed(closed.get(), L"Alta", array_of({1})),
            procedure_report(L"Error 3709: The connection is closed, or not valid for this operation. (ADODB.Command)",
                             L"Alta"));
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

TEST_F(ProcedureRefusal, TheFamilysReportTakesOverWhereItIsRegistered) {
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
