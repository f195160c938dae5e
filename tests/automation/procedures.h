// A database with stored procedures, as the test ADO has them, and calls of them by both kinds of host.
#pragma once

#include <optional>

#include "automation/arrays.h"
#include "automation/both.h"
#include "automation/boxes.h"
#include "automation/database.h"

namespace qvr::tests {

// ADO's numbers.
namespace ado {
enum Type {
  kSmallInt = 2,
  kInteger = 3,
  kSingle = 4,
  kDouble = 5,
  kCurrency = 6,
  kDate = 7,
  kBoolean = 11,
  kUnsignedTinyInt = 17,
  kBigInt = 20,
  kNumeric = 131,
  kDbTimeStamp = 135,
  kVarChar = 200,
  kVarWChar = 202
};
enum Direction { kInput = 1, kOutput = 2, kInputOutput = 3, kReturnValue = 4 };
}  // namespace ado

struct ProcedureParameter {
  const wchar_t* name;
  ado::Type type;
  ado::Direction direction = ado::kInput;
  int size = 0;
};

struct ProcedureStep {
  const wchar_t* statement;
  std::optional<int> sets = {};  // the parameter's position; 0 is the return value
};

class ProcedureDatabase : public Database {
 public:
  ProcedureDatabase();
  // The return value, of type Long, comes by itself.
  void define(const wchar_t* name, const std::vector<ProcedureParameter>& parameters,
              const std::vector<ProcedureStep>& steps) const;
};

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

  ProcedureDatabase database;
  LateObject connection = database.open();
  LateObject cfp{L"QVRlib21.QVRcfp"};
  ComPtr<_QVRcfp> early = cfp.as<_QVRcfp>();
};

}  // namespace qvr::tests
