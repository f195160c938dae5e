// The runner of scripts into the server that is beside this program, its events and boxes kept.
#pragma once

#include <gtest/gtest.h>

#include "script/qvrscr.h"
#include "servers/server.h"
#include "servers/session.h"
#include "support/run_events.h"
#include "support/test_thread.h"

namespace qvr::tests {

class ServerRun : public testing::Test {
 protected:
  ServerRun();

  // Each test begins with a database without tables, on a server that runs.
  void SetUp() override;

  bool run(TextView commands, Text id = u"app");
  // Asked in a session of its own.
  Text ask(TextView query) const { return Session(server.odbc_string()).ask(query); }

  const DatabaseServer& server = DatabaseServer::here();
  TestThread thread;
  RunEvents events;
  QVRScr runner{events};
};

}  // namespace qvr::tests
