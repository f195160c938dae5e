#include "automation/in_use.h"

#include <gtest/gtest.h>
#include <psapi.h>

#include <algorithm>
#include <ostream>
#include <vector>

namespace qvr::tests {
namespace {

// Makes as many as there can be, and takes them away again.
template <class Make, class Destroy>
std::size_t left(Make&& make, Destroy&& destroy) {
  using Made = decltype(make());
  std::vector<Made> all;
  for (Made made = make(); made != Made(); made = make()) all.push_back(made);
  for (const Made each : all) destroy(each);
  return all.size();
}

// Handles of all processes as the system lists them (SYSTEM_HANDLE_INFORMATION_EX), which no header declares.
struct ListedHandle {
  void* object;
  ULONG_PTR process, value;
  ULONG access;
  USHORT trace, type;
  ULONG attributes, reserved;
};
struct HandleList {
  ULONG_PTR count, reserved;
  ListedHandle first;
};

// GetProcessHandleCount is always 0 under Wine 8.
DWORD handles_in_use() {
  constexpr ULONG kExtendedHandleInformation = 64;
  constexpr LONG kTooSmall = static_cast<LONG>(0xC0000004);
  using Query = LONG(NTAPI*)(ULONG, void*, ULONG, ULONG*);
  static const auto query = reinterpret_cast<Query>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), "NtQuerySystemInformation")));
  std::vector<ULONG_PTR> buffer(1 << 14);
  LONG listed = kTooSmall;
  while (listed == kTooSmall) {
    buffer.resize(buffer.size() * 2);
    listed = query(kExtendedHandleInformation, buffer.data(), static_cast<ULONG>(buffer.size() * sizeof(ULONG_PTR)),
                   nullptr);
  }
  EXPECT_EQ(listed, 0);
  const auto& list = *reinterpret_cast<const HandleList*>(buffer.data());
  return static_cast<DWORD>(std::count_if(&list.first, &list.first + list.count, [](const ListedHandle& handle) {
    return handle.process == GetCurrentProcessId();
  }));
}

std::size_t modules_loaded() {
  DWORD size = 0;
  EnumProcessModules(GetCurrentProcess(), nullptr, 0, &size);
  return size / sizeof(HMODULE);
}

}  // namespace

InUse in_use() {
  InUse now;
  now.handles = handles_in_use();
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
  return now;
}

SystemObjects system_objects() {
  SystemObjects now;
  now.gdi_objects = left([] { return CreatePen(PS_SOLID, 1, 1); }, DeleteObject);
  now.user_objects = left(CreateMenu, DestroyMenu);
  // Slot 0 counts from 1.
  now.thread_local_slots = left([] { return TlsAlloc() + 1; }, [](DWORD slot) { return TlsFree(slot - 1); });
  now.modules = modules_loaded();
  return now;
}

std::ostream& operator<<(std::ostream& out, const SystemObjects& objects) {
  return out << objects.gdi_objects << " GDI objects, " << objects.user_objects << " USER objects and "
             << objects.thread_local_slots << " thread-local slots left, " << objects.modules << " modules loaded";
}

void stop_string_cache() {
  using SetOaNoCache = void(WINAPI*)();
  const auto stop = GetProcAddress(GetModuleHandleW(L"oleaut32"), "SetOaNoCache");
  ASSERT_NE(stop, nullptr);
  reinterpret_cast<SetOaNoCache>(reinterpret_cast<void*>(stop))();
}

}  // namespace qvr::tests
