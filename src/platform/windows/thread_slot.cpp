#include "platform/thread_slot.h"

#include "platform/windows/thread_pointer.h"

namespace qvr::thread_slot {
namespace {

const windows::ThreadPointer pointer_of_thread;

}  // namespace

void* get() noexcept { return pointer_of_thread.get(); }

bool set(void* pointer, Destroy) noexcept { return pointer_of_thread.set(pointer); }

}  // namespace qvr::thread_slot
