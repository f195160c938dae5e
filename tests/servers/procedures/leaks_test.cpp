// Calls into a real database leave nothing behind in this process.
#include "automation/in_use.h"
#include "servers/procedures/server_procedures.h"

namespace qvr::tests {
namespace {

class ProcedureLeaks : public ServerProcedures {
 protected:
  void call_in_every_way(Var list) {
    const LateObject object(L"QVRlib21.QVRcfp");
    object.call(L"Asignar", {L"id", 2, L"", L"", L"", L"", L"", L"", L"", L""});
    const auto called = [&](const Var& argument) {
      EXPECT_EQ(describe(object.call(L"EjecutarProcSQL7", {connection.get(), L"p", argument}).value.raw()),
                "BOOL true");
    };
    called(list);
    called(Var::by_reference(list));
    called(Var::by_content(list));
    EXPECT_TRUE(call_early(connection.get(), L"p", &list.raw()));
  }
};

TEST_F(ProcedureLeaks, NothingStaysOfCallsAndTheirOutputs) {
  define(L"p", L"in a varchar(20), inout b int", L"select b + 1 into b;");
  constexpr int kRuns = 20;
  const auto run_often = [&] {
    for (int i = 0; i < kRuns; ++i) {
      for (const VARTYPE type : {VT_VARIANT, VT_BSTR}) call_in_every_way(array_of({L"text", L"5"}, 0, type));
    }
  };
  stop_string_cache();
  run_often();
  const InUse before = in_use();
  run_often();
  const InUse after = in_use();
  // A leak shows at least once a run; caches of the system may grow by a few.
  EXPECT_LT(after.blocks, before.blocks + kRuns / 2);
  EXPECT_LT(after.handles, before.handles + kRuns / 2);
}

}  // namespace
}  // namespace qvr::tests
