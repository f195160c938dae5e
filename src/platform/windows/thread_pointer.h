// One pointer per thread, of which the system keeps the place until the process ends: the library is not unloaded.
#pragma once

#include <windows.h>

namespace qvr::windows {

class ThreadPointer {
 public:
  ThreadPointer() noexcept : number_(TlsAlloc()) {}
  ThreadPointer(const ThreadPointer&) = delete;
  ThreadPointer& operator=(const ThreadPointer&) = delete;

  void* get() const noexcept {
    const DWORD last_error = GetLastError();  // TlsGetValue clears it, and a caller may be about to read it
    void* pointer = TlsGetValue(number_);
    SetLastError(last_error);
    return pointer;
  }

  // False where the system has no room for it; the thread keeps what it had then.
  bool set(void* pointer) const noexcept { return TlsSetValue(number_, pointer) != FALSE; }

 private:
  DWORD number_;
};

}  // namespace qvr::windows
