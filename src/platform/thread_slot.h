// One pointer per thread. Windows frees nothing by itself: the library's entry point is told when a thread leaves.
#pragma once

namespace qvr::thread_slot {

void* get() noexcept;

// False where the system has no room for it; the thread keeps what it had then.
bool set(void* pointer) noexcept;

}  // namespace qvr::thread_slot
