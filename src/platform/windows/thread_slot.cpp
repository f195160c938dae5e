#include "platform/thread_slot.h"

#include <windows.h>

namespace qvr::thread_slot {
namespace {

// Allocated when the library is loaded. The entry point deletes what a leaving thread had; nothing here runs at
// thread exit, since the library may be unloaded before its threads end.
struct Index {
  Index() : number(TlsAlloc()) {}
  ~Index() {
    if (number != TLS_OUT_OF_INDEXES) TlsFree(number);
  }
  Index(const Index&) = delete;
  Index& operator=(const Index&) = delete;
  DWORD number;
};

const Index index;

}  // namespace

void* get() noexcept {
  const DWORD last_error = GetLastError();  // TlsGetValue clears it, and a caller may be about to read it
  void* pointer = TlsGetValue(index.number);
  SetLastError(last_error);
  return pointer;
}

bool set(void* pointer) noexcept { return TlsSetValue(index.number, pointer) != FALSE; }

}  // namespace qvr::thread_slot
