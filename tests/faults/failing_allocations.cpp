#include "faults/failing_allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

#include "support/faults_paused.h"

namespace qvr::tests {
namespace {

// Plain data: an allocation can be asked for before and after everything else of a thread is there.
thread_local bool armed = false, lasting = false, any_failed = false;
thread_local std::size_t left = 0;  // to the one that fails; 0 behind it
std::atomic<std::size_t> live{0};

bool fails_now() noexcept {
  if (!armed || pauses > 0) return false;
  const bool now = left == 0 ? lasting : --left == 0;
  any_failed = any_failed || now;
  return now;
}

void* allocated(std::size_t size) noexcept {
  if (fails_now()) return nullptr;
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory != nullptr) ++live;
  return memory;
}

void* allocated(std::size_t size, std::align_val_t alignment) noexcept {
  if (fails_now()) return nullptr;
  const auto unit = static_cast<std::size_t>(alignment);
  void* const memory = std::aligned_alloc(unit, (size + unit - 1) / unit * unit);
  if (memory != nullptr) ++live;
  return memory;
}

void* or_thrown(void* memory) {
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void given_back(void* memory) noexcept {
  if (memory != nullptr) --live;
  std::free(memory);
}

}  // namespace

FailingAllocations::FailingAllocations(std::size_t nth, Shortage shortage) noexcept {
  left = nth;
  lasting = shortage == Shortage::Lasting;
  any_failed = false;
  armed = true;
}

FailingAllocations::~FailingAllocations() { armed = false; }

bool FailingAllocations::failed() const noexcept { return any_failed; }

std::size_t live_allocations() noexcept { return live; }

}  // namespace qvr::tests

using namespace qvr::tests;

void* operator new(std::size_t size) { return or_thrown(allocated(size)); }
void* operator new[](std::size_t size) { return or_thrown(allocated(size)); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocated(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return allocated(size); }
void* operator new(std::size_t size, std::align_val_t unit) { return or_thrown(allocated(size, unit)); }
void* operator new[](std::size_t size, std::align_val_t unit) { return or_thrown(allocated(size, unit)); }

void operator delete(void* memory) noexcept { given_back(memory); }
void operator delete[](void* memory) noexcept { given_back(memory); }
void operator delete(void* memory, std::size_t) noexcept { given_back(memory); }
void operator delete[](void* memory, std::size_t) noexcept { given_back(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { given_back(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { given_back(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { given_back(memory); }
void operator delete[](void* memory, std::align_val_t) noexcept { given_back(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { given_back(memory); }
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept { given_back(memory); }
