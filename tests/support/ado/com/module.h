// What keeps the module loaded.
#pragma once

#include <windows.h>

namespace qvr::tests::com {

HINSTANCE module_instance();

// Counts one thing that must keep the module loaded, for as long as it lives.
class ModuleLock {
 public:
  ModuleLock();
  ~ModuleLock();
  ModuleLock(const ModuleLock&) = delete;
  ModuleLock& operator=(const ModuleLock&) = delete;
};

}  // namespace qvr::tests::com
