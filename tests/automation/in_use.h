// Memory, handles and other things of the system that the process uses, to detect leaks.
#pragma once

#include <windows.h>

#include <cstddef>
#include <iosfwd>

namespace qvr::tests {

struct InUse {
  std::size_t blocks = 0, bytes = 0;  // of all heaps
  DWORD handles = 0;
};

InUse in_use();

// What the system has a limited number of. Of the first three, how many more can be made: Wine counts none that are in
// use. Takes half a second.
struct SystemObjects {
  std::size_t gdi_objects, user_objects, thread_local_slots;  // left
  std::size_t modules;                                        // loaded
};

SystemObjects system_objects();
std::ostream& operator<<(std::ostream& out, const SystemObjects& objects);

// Disables the BSTR cache of OLE Automation, which would hide and fake leaks.
void stop_string_cache();

}  // namespace qvr::tests
