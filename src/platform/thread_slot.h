// One pointer per thread. Windows frees nothing by itself: the library's entry point is told when a thread leaves.
#pragma once

namespace qvr::thread_slot {

void* get() noexcept;

// `destroy` is for a pointer that is still there when the thread ends, where the system calls it by itself. False where
// the system has no room for the pointer; the thread keeps what it had then.
using Destroy = void (*)(void*) noexcept;
bool set(void* pointer, Destroy destroy) noexcept;

}  // namespace qvr::thread_slot
