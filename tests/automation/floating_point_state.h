// Floating-point states that hosts set, and the complete state of the thread.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>

namespace qvr::tests {

struct HostState {
  const char* name;
  std::uint16_t x87;          // control word
  std::uint32_t sse;          // MXCSR
  std::uint16_t pending = 0;  // flags of the x87; an unmasked one raises an exception at the next instruction
  bool operator==(const HostState&) const = default;
};

inline void PrintTo(const HostState& state, std::ostream* out) { *out << state.name; }

// Windows' default: 53 bits, round to nearest, all exceptions masked.
inline constexpr HostState kDefaultState{"Default", 0x027F, 0x1F80};

// One of each way in which a host's state can differ.
inline constexpr HostState kHostStates[] = {
    {"Of24Bits", 0x007F, 0x1F80},
    {"Of64Bits", 0x037F, 0x1F80},
    {"RoundingDown", 0x067F, 0x3F80},
    {"RoundingUp", 0x0A7F, 0x5F80},
    {"RoundingToZero", 0x0E7F, 0x7F80},
    {"RoundingUpInSseOnly", 0x027F, 0x5F80},
    {"WithoutDenormals", 0x027F, 0x9FC0},
    {"StoppingAtEverything", 0x0240, 0x0000},
    {"StoppingAtInvalidZeroAndOverflow", 0x1332, 0x1900},
    {"Of24BitsRoundingUpStoppingAtEverything", 0x0840, 0x4000},
    {"WithPendingExceptions", 0x0240, 0x003F, 0x003F},
};

// Control, status and tag words of the x87, and MXCSR.
struct StatePicture {
  std::uint16_t control = 0, status = 0, tags = 0;
  std::uint32_t sse = 0;
  bool operator==(const StatePicture&) const = default;

  // Without flags, which every calculation changes.
  bool has_control_of(const HostState& state) const;
};

std::string to_string(const StatePicture& picture);

// The state as it is now; it stays so.
StatePicture state_now();

// Before and after the call, which runs in this state. Afterwards the state is the default one.
struct StateAround {
  StatePicture before, after;
};
StateAround in_state(const HostState& state, const std::function<void()>& call);

}  // namespace qvr::tests
