// What reaches the system's ADO of a run's connection and command.
#include <gtest/gtest.h>

#include "automation/played_ado.h"
#include "qvrscript/run_ado.h"

namespace qvr::tests {
namespace {

TEST(WindowsRunAdo, GivesItsConnectionsTheTimeLimitBeforeTheyOpen) {
  PlayedAdo played;
  {
    const auto ado = script_tool::make_run_ado(7);
    const auto connection = ado->new_connection();
    connection->open();
    ado->cancel();
    ado->new_command()->set_active_connection(*connection);
  }
  EXPECT_EQ(played.calls(), (std::vector<std::string>{
                                "new Connection1",
                                "Connection1.ConnectionTimeout = I4 7",
                                "Connection1.Open(BSTR , BSTR , BSTR , I4 -1)",
                                "new Command1",
                                "set Command1.ActiveConnection = Connection1",
                            }));
  EXPECT_EQ(played.living(), 0);
}

}  // namespace
}  // namespace qvr::tests
