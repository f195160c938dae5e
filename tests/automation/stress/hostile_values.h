// What no well-meaning host passes as an argument.
#pragma once

#include <span>

#include "automation/stress/callers_memory.h"

namespace qvr::tests {

struct HostileValue {
  const char* name;
  VARIANT (*make)(CallersMemory& memory);
  // One that refers nowhere or to itself is refused whatever the parameter's type.
  bool always_refused = false;
};

std::span<const HostileValue> hostile_values();

// An object that knows nothing but its identity, and one that fails whatever it is asked. Never released.
IUnknown& object_without_members();
IDispatch& object_that_fails();

}  // namespace qvr::tests
