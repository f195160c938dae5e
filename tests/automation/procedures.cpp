#include "automation/procedures.h"

#include <array>

namespace qvr::tests {
namespace {

std::wstring quoted(const wchar_t* text) {
  std::wstring literal = L"'";
  for (; *text != L'\0'; ++text) {
    if (*text == L'\'') literal += L'\'';
    literal += *text;
  }
  return literal + L"'";
}

std::wstring row_of(std::initializer_list<std::wstring> fields) {
  std::wstring row = L" values(";
  for (const std::wstring& field : fields) row += (row.ends_with(L'(') ? L"" : L", ") + field;
  return row + L")";
}

}  // namespace

ProcedureDatabase::ProcedureDatabase() {
  run(L"create table ado_parameters(procedure varchar(50), position integer, name varchar(50), type integer, "
      L"size integer, direction integer)");
  run(L"create table ado_steps(procedure varchar(50), step integer, statement varchar(500), sets integer)");
}

void ProcedureDatabase::define(const wchar_t* name, const std::vector<ProcedureParameter>& parameters,
                               const std::vector<ProcedureStep>& steps) const {
  std::vector<ProcedureParameter> all{{L"@RETURN_VALUE", ado::kInteger, ado::kReturnValue}};
  all.insert(all.end(), parameters.begin(), parameters.end());
  for (std::size_t i = 0; i < all.size(); ++i) {
    run(L"insert into ado_parameters" +
        row_of({quoted(name), std::to_wstring(i), quoted(all[i].name), std::to_wstring(all[i].type),
                std::to_wstring(all[i].size), std::to_wstring(all[i].direction)}));
  }
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const std::wstring sets = steps[i].sets ? std::to_wstring(*steps[i].sets) : L"null";
    run(L"insert into ado_steps" + row_of({quoted(name), std::to_wstring(i), quoted(steps[i].statement), sets}));
  }
}

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

}  // namespace qvr::tests
