// The module's lock count and pinning.
#pragma once

#include "com/com.h"

namespace qvr::com {

// Counts for DllCanUnloadNow; held by every object and by LockServer.
class ModuleLock {
 public:
  ModuleLock() noexcept { hold(); }
  ~ModuleLock() { let_go(); }
  ModuleLock(const ModuleLock&) = delete;
  ModuleLock& operator=(const ModuleLock&) = delete;

  static void hold() noexcept { InterlockedIncrement(&count_); }
  static void let_go() noexcept { InterlockedDecrement(&count_); }
  static bool any() noexcept { return count_ != 0; }

 private:
  static inline volatile LONG count_ = 0;
};

// While DLL_THREAD_DETACH is handled. The loader lock is held then, so that there is one at a time in the process.
class ThreadDetach {
 public:
  ThreadDetach() noexcept { InterlockedExchange(&thread_, static_cast<LONG>(GetCurrentThreadId())); }
  ~ThreadDetach() { InterlockedExchange(&thread_, 0); }
  ThreadDetach(const ThreadDetach&) = delete;
  ThreadDetach& operator=(const ThreadDetach&) = delete;

  // Whether it is this thread that detaches.
  static bool under_way() noexcept { return thread_ == static_cast<LONG>(GetCurrentThreadId()); }

 private:
  static inline volatile LONG thread_ = 0;
};

// Pins the module until the process ends (GET_MODULE_HANDLE_EX_FLAG_PIN).
void keep_loaded() noexcept;

}  // namespace qvr::com
