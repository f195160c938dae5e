// Replaces operator new, so that the n-th allocation of a thread can fail.
#pragma once

#include <cstddef>

namespace qvr::tests {

enum class Shortage {
  Once,    // one allocation fails, those behind it succeed
  Lasting  // every further one fails as well
};

// While it lives, this thread's n-th allocation (from 1) fails. Not to be nested.
class FailingAllocations {
 public:
  FailingAllocations(std::size_t nth, Shortage shortage) noexcept;
  ~FailingAllocations();
  FailingAllocations(const FailingAllocations&) = delete;
  FailingAllocations& operator=(const FailingAllocations&) = delete;

  bool failed() const noexcept;  // whether there was an n-th
};

// How many allocations of the whole program were not given back yet.
std::size_t live_allocations() noexcept;

}  // namespace qvr::tests
