#include "automation/procedures.h"

namespace qvr::tests {

ProcedureCalls::ProcedureCalls() { use(2); }

void ProcedureCalls::use(int engine) {
  const LateAnswer done = cfp.call(L"Asignar", {L"id", engine, L"", L"", L"", L"", L"", L"", L"", L""});
  EXPECT_EQ(describe(done.value.raw()), "BOOL true");
}

bool ProcedureCalls::call_early(IDispatch* connected, const wchar_t* procedure, VARIANT* parameters) {
  auto* raw = reinterpret_cast<Connection*>(connected);
  Bstr name(procedure);
  VARIANT_BOOL done = 2;  // neither of the two
  EXPECT_EQ(early->EjecutarProcSQL7(&raw, &name, parameters, &done), S_OK);
  EXPECT_TRUE(done == VARIANT_TRUE || done == VARIANT_FALSE) << done;
  return done == VARIANT_TRUE;
}

bool ProcedureCalls::call_late(IDispatch* connected, const wchar_t* procedure, const Var& parameters) {
  const LateAnswer answer = cfp.call(L"EjecutarProcSQL7", {connected, procedure, parameters});
  EXPECT_EQ(answer.result, S_OK);
  EXPECT_EQ(answer.value.type(), VT_BOOL);
  return answer.value.raw().boolVal == VARIANT_TRUE;
}

void ProcedureCalls::expect_call(const wchar_t* procedure, const Var& parameters, bool answer,
                                 const std::string& after) {
  struct Way {
    const char* name;
    bool late, given_back;
    std::function<Var(Var&)> passed;
  };
  const auto by_value = [](Var& variable) { return variable; };
  const auto by_variable = [](Var& variable) { return Var::by_reference(variable); };
  const auto by_content = [](Var& variable) { return Var::by_content(variable); };
  for (const Way& way :
       {Way{"early, a variant's array", false, true, nullptr},
        Way{"early, a script's variable", false, true, by_variable},
        Way{"early, an array variable", false, true, by_content}, Way{"late, by value", true, false, by_value},
        Way{"late, a script's variable", true, true, by_variable},
        Way{"late, an array variable", true, true, by_content}}) {
    if (HasFailure()) return;  // each further one may show a box, and wait for it
    SCOPED_TRACE(std::string(narrow(procedure)) + ", " + way.name);
    Var variable = parameters;
    const SAFEARRAY* const before = variable.raw().parray;
    Var argument = way.passed ? way.passed(variable) : Var();
    VARIANT* passed = way.passed ? &argument.raw() : &variable.raw();
    EXPECT_EQ(way.late ? call_late(connection.get(), procedure, argument)
                       : call_early(connection.get(), procedure, passed),
              answer);
    EXPECT_EQ(describe(variable.raw()), way.given_back ? after : describe(parameters.raw()));
    EXPECT_EQ(variable.raw().parray, before) << "the array is the caller's own";
  }
}

std::wstring ProcedureCalls::failed(IDispatch* connected, const wchar_t* procedure, const Var& parameters) {
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

std::wstring procedure_report(const std::wstring& errors, const wchar_t* procedure) {
  return L"Error indeterminado\r\n\r\n" + errors + L"\r\n\r\nObjeto: " + procedure + L"\r\nM\u00e9todo: EjecutarProc";
}

}  // namespace qvr::tests
