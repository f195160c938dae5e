// Every member in every floating-point state that a host can set: precision, rounding, masks of exceptions, denormals
// as zero. The answer is that of the default state, nothing stops the process, and the host's state is back.
#include <limits>
#include <vector>

#include "automation/floating_point_state.h"
#include "automation/prepared_call.h"
#include "automation/stress/hostile_caller.h"
#include "automation/unseen_station.h"

namespace qvr::tests {
namespace {

// All exceptions masked, none, and those of the run-times that stop at invalid operations, division by zero and
// overflow.
constexpr unsigned kAll = 0x3F, kNone = 0x00, kUsual = 0x32;

std::vector<HostState> all_states() {
  std::vector<HostState> states;
  for (const unsigned precision : {0x0000u, 0x0200u, 0x0300u}) {
    for (unsigned rounding = 0; rounding < 4; ++rounding) {
      for (const unsigned masks : {kAll, kNone, kUsual}) {
        for (const unsigned denormals : {0x0000u, 0x8040u}) {  // flush to zero, and operands as zero
          const auto x87 = static_cast<std::uint16_t>(0x0040 | precision | rounding << 10 | masks);
          states.push_back({"", x87, rounding << 13 | masks << 7 | denormals});
        }
      }
    }
  }
  return states;
}

// Without a desktop: what the system does to show a box runs in the host's state, as for a box of the host's own.
class FloatingPointStates : public HostileCaller {
  const UnseenStation unseen_;
};

std::string outcome_in(const HostState& state, const Subject& other, const DescribedMember& member,
                       const std::vector<Var>& arguments) {
  const Subject subject(other.described());
  const auto call = late_call(&subject.object(), member.name.c_str(), member.kind, arguments);
  const StateAround around = in_state(state, [&] { call->run(); });
  // From the default state flags of the library's calculations come back, as from any function.
  if (state == kDefaultState) return call->outcome();
  EXPECT_EQ(to_string(around.after), to_string(around.before));
  return call->outcome();
}

void expect_same_in(const std::vector<HostState>& states, const Subject& subject, const DescribedMember& member,
                    const std::vector<Var>& arguments) {
  const std::string expected = outcome_in(kDefaultState, subject, member, arguments);
  for (const HostState& state : states) {
    EXPECT_EQ(outcome_in(state, subject, member, arguments), expected)
        << std::hex << "control word " << state.x87 << ", MXCSR " << state.sse;
  }
}

TEST_P(FloatingPointStates, OfUsualArguments) {
  attack_every_member([](const Subject& subject, const DescribedMember& member) {
    expect_same_in(all_states(), subject, member, subject.good_arguments(member));
  });
}

// NaNs, a signalling one among them, as numbers and dates, where invalid operations stop.
TEST_P(FloatingPointStates, OfNoNumbers) {
  const double quiet = std::numeric_limits<double>::quiet_NaN(),
               signalling = std::numeric_limits<double>::signaling_NaN();
  std::vector<HostState> stopping = all_states();
  std::erase_if(stopping, [](const HostState& state) {
    return (state.x87 & 0x0F00) != 0x0200 || (state.x87 & kAll) == kAll || (state.sse & 0x8000) != 0;
  });
  ASSERT_EQ(stopping.size(), 2u);
  attack_every_member([&](const Subject& subject, const DescribedMember& member) {
    // ADO gets the value in the host's state, as from the host itself.
    if (member.name == L"AgregarParametroADO" || member.name == L"EjecutarProcSQL7") return;
    for (const Var& value : {Var(quiet), Var(signalling), Var::date(signalling)}) {
      const std::vector<Var> good = subject.good_arguments(member);
      for (std::size_t position = 0; position < good.size(); ++position) {
        SCOPED_TRACE(narrow(member.parameters[position].name) + ": " + describe(value.raw()));
        std::vector<Var> arguments = good;
        arguments[position] = value;
        expect_same_in(stopping, subject, member, arguments);
      }
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Every, FloatingPointStates, testing::Range(std::size_t{0}, std::size(kInterfaces)),
                         interface_name);

}  // namespace
}  // namespace qvr::tests
