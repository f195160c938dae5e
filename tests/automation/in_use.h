// What the process holds: counted before and after, it shows what was left behind.
#pragma once

#include <windows.h>

#include <cstddef>

namespace qvr::tests {

struct InUse {
  std::size_t blocks = 0, bytes = 0;  // of all heaps
  DWORD handles = 0;
};

InUse in_use();

// Automation keeps released strings for reuse, which would hide and feign leaks. From here on it does not.
void stop_string_cache();

}  // namespace qvr::tests
