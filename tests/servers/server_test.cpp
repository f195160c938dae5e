// The server under the other tests: it is there, takes and gives texts as they are, ends and comes back.
#include "servers/server.h"

#include <gtest/gtest.h>

#include "servers/session.h"

namespace qvr::tests {
namespace {

TEST(Server, TakesAndGivesTexts) {
  for (const Text& who : {DatabaseServer::here().odbc_string(), DatabaseServer::here().administrator_string()}) {
    EXPECT_EQ(Session(who).ask(u"select 'Jam\u00f3n \u20ac \u0141 \U0001F600'"),
              u"Jam\u00f3n \u20ac \u0141 \U0001F600");
  }
}

TEST(Server, ComesBackAfterItsEnd) {
  const DatabaseServer& server = DatabaseServer::here();
  for (const auto end : {&DatabaseServer::stop, &DatabaseServer::kill}) {
    (server.*end)();
    EXPECT_THROW(Session(server.odbc_string()).ask(u"select 1"), odbc::Failure);
    server.start();
    EXPECT_EQ(Session(server.odbc_string()).ask(u"select 1"), u"1");
  }
}

}  // namespace
}  // namespace qvr::tests
