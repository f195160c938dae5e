// A host lets go of the library as often as it likes. One that has been used stays until the process ends.
#include <gtest/gtest.h>

#include "automation/stress/child.h"
#include "automation/stress/child_roles.h"

namespace qvr::tests {
namespace {

// Each in a process of its own, where the library has not been loaded before.
TEST(Unloading, AThousandTimesAfterUseLeavesNothingBehind) { EXPECT_EQ(Child(kLoads, L"used").answer(), 0); }

TEST(Unloading, AThousandTimesWithoutUseLeavesWhatTheRuntimeKeeps) { EXPECT_EQ(Child(kLoads, L"unused").answer(), 0); }

}  // namespace
}  // namespace qvr::tests
