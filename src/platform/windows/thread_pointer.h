// A TLS slot. Nothing is called at thread detach.
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
    const DWORD last_error = GetLastError();  // TlsGetValue resets it; keep it for the caller
    void* pointer = TlsGetValue(number_);
    SetLastError(last_error);
    return pointer;
  }

  // False when out of TLS memory; the old value stays then.
  bool set(void* pointer) const noexcept { return TlsSetValue(number_, pointer) != FALSE; }

 private:
  const DWORD number_;
};

}  // namespace qvr::windows
