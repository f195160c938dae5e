#include "automation/in_use.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qvr::tests {

InUse in_use() {
  InUse now;
  HANDLE heaps[64];
  const DWORD found = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
  for (DWORD i = 0; i < found; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heaps[i]);
    while (HeapWalk(heaps[i], &entry)) {
      if (!(entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)) continue;
      ++now.blocks;
      now.bytes += entry.cbData;
    }
    HeapUnlock(heaps[i]);
  }
  GetProcessHandleCount(GetCurrentProcess(), &now.handles);
  return now;
}

void stop_string_cache() {
  using SetOaNoCache = void(WINAPI*)();
  const auto stop = GetProcAddress(GetModuleHandleW(L"oleaut32"), "SetOaNoCache");
  ASSERT_NE(stop, nullptr);
  reinterpret_cast<SetOaNoCache>(reinterpret_cast<void*>(stop))();
}

}  // namespace qvr::tests
