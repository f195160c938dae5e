// Requests for memory, counted.
#pragma once

#include <cstddef>

namespace qvr::tests {

// While one of these lives, whatever this thread asks a heap for is counted, whichever module asks: the imports of all
// modules that lead to the system's own allocation lead here first, and so do those for giving back. One at a time.
class Allocations {
 public:
  Allocations();
  ~Allocations();
  Allocations(const Allocations&) = delete;
  Allocations& operator=(const Allocations&) = delete;

  std::size_t count() const;
  // The most bytes that were held at once in blocks of a mebibyte and more, besides those from before. A block that is
  // made larger counts twice, as its content may be moved.
  std::size_t most_held() const;
};

}  // namespace qvr::tests
