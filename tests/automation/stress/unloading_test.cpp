// A host loads and frees the library as often as it likes. It stays until the process ends.
#include <gtest/gtest.h>

#include <iterator>

#include "automation/floating_point_state.h"
#include "automation/stress/child.h"
#include "automation/stress/child_roles.h"

namespace qvr::tests {
namespace {

// Each in a process of its own, where the library has not been loaded before.
TEST(Unloading, AThousandTimesAfterUseLeavesNothingBehind) { EXPECT_EQ(Child(kLoads, L"used").answer(), 0); }

TEST(Unloading, AThousandTimesWithoutUseLeavesNothingBehind) { EXPECT_EQ(Child(kLoads, L"unused").answer(), 0); }

class LoadingWithSlots : public testing::TestWithParam<int> {};

TEST_P(LoadingWithSlots, IsRefusedWhereTheyDoNotSuffice) {
  constexpr int kWorks = 0, kRefused = 10;
  EXPECT_EQ(Child(kLoadsWithSlots, std::to_wstring(GetParam())).answer(), GetParam() < 4 ? kRefused : kWorks);
}

INSTANTIATE_TEST_SUITE_P(Slots, LoadingWithSlots, testing::Range(0, 6));

class LoadingInState : public testing::TestWithParam<std::size_t> {};

TEST_P(LoadingInState, LeavesTheStateToTheHost) {
  EXPECT_EQ(Child(kLoadsInState, std::to_wstring(GetParam())).answer(), 0);
}

INSTANTIATE_TEST_SUITE_P(States, LoadingInState, testing::Range(std::size_t{0}, std::size(kHostStates)),
                         [](const auto& row) { return std::string(kHostStates[row.param].name); });

}  // namespace
}  // namespace qvr::tests
