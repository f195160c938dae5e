#include "support/peak_memory.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace qvr::tests {
namespace {

// In front of every block, as large as keeps the block aligned for anything.
constexpr std::size_t kHeader = alignof(std::max_align_t);
static_assert(kHeader >= sizeof(std::size_t));

std::atomic<std::size_t> live{0}, most{0};

void* counted(std::size_t size) noexcept {
  if (size > static_cast<std::size_t>(-1) - kHeader) return nullptr;
  void* const block = std::malloc(size + kHeader);
  if (block == nullptr) return nullptr;
  *static_cast<std::size_t*>(block) = size;
  const std::size_t now = live += size;
  for (std::size_t seen = most; seen < now && !most.compare_exchange_weak(seen, now);) {
  }
  return static_cast<char*>(block) + kHeader;
}

void given_back(void* memory) noexcept {
  if (memory == nullptr) return;
  void* const block = static_cast<char*>(memory) - kHeader;
  live -= *static_cast<std::size_t*>(block);
  std::free(block);
}

void* or_thrown(void* memory) {
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

PeakMemory::PeakMemory() noexcept : before_(live) { most = before_; }

std::size_t PeakMemory::bytes() const noexcept { return most - before_; }

}  // namespace qvr::tests

using namespace qvr::tests;

// The forms with an alignment are the standard library's, which allocates and frees past these.
void* operator new(std::size_t size) { return or_thrown(counted(size)); }
void* operator new[](std::size_t size) { return or_thrown(counted(size)); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return counted(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return counted(size); }
void operator delete(void* memory) noexcept { given_back(memory); }
void operator delete[](void* memory) noexcept { given_back(memory); }
void operator delete(void* memory, std::size_t) noexcept { given_back(memory); }
void operator delete[](void* memory, std::size_t) noexcept { given_back(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { given_back(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { given_back(memory); }
