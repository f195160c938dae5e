// Calls of stored procedures by both kinds of host.
#pragma once

#include "automation/arrays.h"
#include "automation/both.h"
#include "automation/boxes.h"
#include "automation/database.h"

namespace qvr::tests {

class ProcedureCalls : public testing::Test {
 protected:
  ProcedureCalls();
  void use(int engine);

  // A host with typed interfaces; its variable changes.
  bool call_early(IDispatch* connection, const wchar_t* procedure, VARIANT* parameters);
  // What a late-bound host gets back as a truth value; the test fails where the call does.
  bool call_late(IDispatch* connection, const wchar_t* procedure, const Var& parameters);

  // Calls the procedure in each way of passing an array and expects this answer, and the array's elements afterwards.
  void expect_call(const wchar_t* procedure, const Var& parameters, bool answer, const std::string& after);

  // False both early and late, with one box each that has the same text, which it gives; nothing comes back.
  std::wstring failed(IDispatch* connection, const wchar_t* procedure, const Var& parameters);

  LateObject connection{ComPtr<IDispatch>()};  // a fixture has one of its own
  LateObject cfp{L"QVRlib21.QVRcfp"};
  ComPtr<_QVRcfp> early = cfp.as<_QVRcfp>();
};

// The text of a box about a failure that has no caption of its own.
std::wstring procedure_report(const std::wstring& errors, const wchar_t* procedure);

}  // namespace qvr::tests
