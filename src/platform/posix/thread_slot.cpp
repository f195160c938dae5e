#include "platform/thread_slot.h"

namespace qvr::thread_slot {
namespace {

struct Slot {
  ~Slot() {
    if (pointer != nullptr) destroy(pointer);
  }
  void* pointer = nullptr;
  Destroy destroy = nullptr;
};

thread_local Slot slot;

}  // namespace

void* get() noexcept { return slot.pointer; }

bool set(void* pointer, Destroy destroy) noexcept {
  slot.pointer = pointer;
  slot.destroy = destroy;
  return true;
}

}  // namespace qvr::thread_slot
