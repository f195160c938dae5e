#include "automation/leak_check.h"

#include "automation/library.h"

namespace qvr::tests {
namespace {

DWORD handles_in_use() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return count;
}

}  // namespace

std::size_t blocks_in_use() {
  std::size_t count = 0;
  HANDLE heaps[64];
  const DWORD found = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
  for (DWORD i = 0; i < found; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heaps[i]);
    while (HeapWalk(heaps[i], &entry)) count += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    HeapUnlock(heaps[i]);
  }
  return count;
}

void stop_string_cache() {
  using SetOaNoCache = void(WINAPI*)();
  const auto stop = GetProcAddress(GetModuleHandleW(L"oleaut32"), "SetOaNoCache");
  ASSERT_NE(stop, nullptr);
  reinterpret_cast<SetOaNoCache>(reinterpret_cast<void*>(stop))();
}

void expect_no_leak(const std::function<void()>& body) {
  constexpr int kRuns = 20;
  stop_string_cache();
  for (int i = 0; i < kRuns; ++i) body();
  const std::size_t blocks = blocks_in_use();
  const DWORD handles = handles_in_use();
  for (int i = 0; i < kRuns; ++i) body();
  // A leak shows at least once a run; caches of the system may grow by a few.
  EXPECT_LT(blocks_in_use(), blocks + kRuns / 2);
  EXPECT_LT(handles_in_use(), handles + kRuns / 2);
  EXPECT_EQ(library().can_unload(), S_OK);
}

}  // namespace qvr::tests
