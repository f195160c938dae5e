// The tests, or with a role named on the command line the process that a test ends before its time.
#include <gtest/gtest.h>

#include "automation/stress/child_roles.h"

int main(int count, char** arguments) {
  if (const auto role = qvr::tests::child_role()) return role();
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
