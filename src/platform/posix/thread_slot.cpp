#include "platform/thread_slot.h"

#include "session/thread_state.h"

namespace qvr::thread_slot {
namespace {

// Takes the state along when the thread ends.
struct Slot {
  ~Slot() { delete static_cast<ThreadState*>(pointer); }
  void* pointer = nullptr;
};

thread_local Slot slot;

}  // namespace

void* get() noexcept { return slot.pointer; }

bool set(void* pointer) noexcept {
  slot.pointer = pointer;
  return true;
}

}  // namespace qvr::thread_slot
