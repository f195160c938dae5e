// One pointer per thread. Nothing here runs when a thread ends.
#pragma once

#include <windows.h>

namespace qvr::windows {

class ThreadPointer {
 public:
  ThreadPointer() noexcept : number_(TlsAlloc()) {}
  ~ThreadPointer() {
    if (number_ != TLS_OUT_OF_INDEXES) TlsFree(number_);
  }
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
  const DWORD number_;
};

}  // namespace qvr::windows
