// Memory and handles of the process, to detect leaks.
#pragma once

#include <windows.h>

#include <cstddef>

namespace qvr::tests {

struct InUse {
  std::size_t blocks = 0, bytes = 0;  // of all heaps
  DWORD handles = 0;
};

InUse in_use();

// Disables the BSTR cache of OLE Automation, which would hide and fake leaks.
void stop_string_cache();

}  // namespace qvr::tests
