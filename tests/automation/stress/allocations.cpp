#include "automation/stress/allocations.h"

#include <windows.h>

#include <gtest/gtest.h>
#include <psapi.h>

#include <algorithm>

namespace qvr::tests {
namespace {

using Allocate = void*(WINAPI*)(HANDLE, DWORD, SIZE_T);
using Reallocate = void*(WINAPI*)(HANDLE, DWORD, void*, SIZE_T);
using Free = BOOLEAN(WINAPI*)(HANDLE, DWORD, void*);
using Address = std::uintptr_t;

Address of_system(const char* name) {
  return reinterpret_cast<Address>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), name)));
}

const Address system_allocate = of_system("RtlAllocateHeap"), system_reallocate = of_system("RtlReAllocateHeap"),
              system_free = of_system("RtlFreeHeap");
DWORD counted_thread = 0;
std::size_t counted = 0, most = 0;
std::ptrdiff_t held = 0;  // below 0 where blocks from before were given back

bool counts() { return GetCurrentThreadId() == counted_thread; }

std::ptrdiff_t if_large(SIZE_T size) {
  constexpr SIZE_T kLarge = 1 << 20;
  return size >= kLarge ? static_cast<std::ptrdiff_t>(size) : 0;
}

void take(SIZE_T size) {
  ++counted;
  held += if_large(size);
  if (held > 0) most = std::max(most, static_cast<std::size_t>(held));
}

void* WINAPI allocate(HANDLE heap, DWORD flags, SIZE_T size) {
  if (counts()) take(size);
  return reinterpret_cast<Allocate>(system_allocate)(heap, flags, size);
}

void* WINAPI reallocate(HANDLE heap, DWORD flags, void* block, SIZE_T size) {
  if (counts()) {
    take(size);
    held -= if_large(HeapSize(heap, 0, block));
  }
  return reinterpret_cast<Reallocate>(system_reallocate)(heap, flags, block, size);
}

BOOLEAN WINAPI give_back(HANDLE heap, DWORD flags, void* block) {
  if (counts() && block != nullptr) held -= if_large(HeapSize(heap, 0, block));
  return reinterpret_cast<Free>(system_free)(heap, flags, block);
}

void replace(Address& import, Address by) {
  DWORD protection = 0;
  if (!VirtualProtect(&import, sizeof import, PAGE_EXECUTE_READWRITE, &protection)) return;
  import = by;
  VirtualProtect(&import, sizeof import, protection, &protection);
}

// Kernel32's own names for these functions are imported as the addresses they stand for.
void replace_imports(HMODULE module, Address from, Address to) {
  auto* const base = reinterpret_cast<unsigned char*>(module);
  const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto& headers = *reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos.e_lfanew);
  const auto& imports = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  if (imports.VirtualAddress == 0) return;
  const auto* from_library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
  for (; from_library->FirstThunk != 0; ++from_library) {
    for (auto* import = reinterpret_cast<Address*>(base + from_library->FirstThunk); *import != 0; ++import) {
      if (*import == from) replace(*import, to);
    }
  }
}

void replace_everywhere(Address from, Address to) {
  HMODULE modules[512];
  DWORD size = 0;
  ASSERT_TRUE(EnumProcessModules(GetCurrentProcess(), modules, sizeof modules, &size));
  const std::size_t count = std::min<std::size_t>(size / sizeof(HMODULE), std::size(modules));
  for (std::size_t i = 0; i < count; ++i) replace_imports(modules[i], from, to);
}

}  // namespace

Allocations::Allocations() {
  counted_thread = GetCurrentThreadId();
  replace_everywhere(system_allocate, reinterpret_cast<Address>(allocate));
  replace_everywhere(system_reallocate, reinterpret_cast<Address>(reallocate));
  replace_everywhere(system_free, reinterpret_cast<Address>(give_back));
  counted = most = 0;
  held = 0;
}

Allocations::~Allocations() {
  replace_everywhere(reinterpret_cast<Address>(allocate), system_allocate);
  replace_everywhere(reinterpret_cast<Address>(reallocate), system_reallocate);
  replace_everywhere(reinterpret_cast<Address>(give_back), system_free);
}

std::size_t Allocations::count() const { return counted; }

std::size_t Allocations::most_held() const { return most; }

}  // namespace qvr::tests
