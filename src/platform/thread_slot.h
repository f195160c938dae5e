// One pointer per thread (TLS). On Windows the DLL's entry point destroys it at thread detach.
#pragma once

namespace qvr::thread_slot {

void* get() noexcept;

// `destroy` is called at thread exit where the system supports it (pthread keys). False when out of memory; the old
// value stays then.
using Destroy = void (*)(void*) noexcept;
bool set(void* pointer, Destroy destroy) noexcept;

}  // namespace qvr::thread_slot
