// What keeps the library loaded.
#pragma once

#include "com/com.h"

namespace qvr::com {

// Held by every object and by LockServer: while one exists, the library must stay.
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

// From now on the library stays loaded until the process ends, whoever lets go of it.
void keep_loaded() noexcept;

}  // namespace qvr::com
