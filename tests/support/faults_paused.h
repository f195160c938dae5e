// Stand-ins do not take part in a shortage of memory: what they record must not get lost, and what they play needs none
// of the library's memory. Programs without failing allocations are not affected.
#pragma once

namespace qvr::tests {

inline thread_local int pauses = 0;

class FaultsPaused {
 public:
  FaultsPaused() noexcept { ++pauses; }
  ~FaultsPaused() { --pauses; }
  FaultsPaused(const FaultsPaused&) = delete;
  FaultsPaused& operator=(const FaultsPaused&) = delete;
};

}  // namespace qvr::tests
