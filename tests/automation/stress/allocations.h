// Requests for memory, counted.
#pragma once

#include <cstddef>

namespace qvr::tests {

// While one of these lives, whatever this thread asks a heap for is counted, whichever module asks: the imports of all
// modules that lead to the system's own allocation lead here first. One at a time.
class Allocations {
 public:
  Allocations();
  ~Allocations();
  Allocations(const Allocations&) = delete;
  Allocations& operator=(const Allocations&) = delete;

  std::size_t count() const;
};

}  // namespace qvr::tests
