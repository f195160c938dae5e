// How much memory a stretch of a program has at most. The program that has this allocates through it everywhere.
#pragma once

#include <cstddef>

namespace qvr::tests {

// From here on, of all threads. Not to be nested: each begins anew.
class PeakMemory {
 public:
  PeakMemory() noexcept;

  // The most bytes that were asked for and not yet given back at one time, beyond those at the beginning. The
  // allocator's own needs, and what other libraries take without `new`, are not counted.
  std::size_t bytes() const noexcept;

 private:
  std::size_t before_;
};

}  // namespace qvr::tests
