#include "platform/windows/floating_point.h"

#include "platform/windows/thread_pointer.h"

namespace qvr::windows {
namespace {

// The innermost call of this thread that found another state than the default one; null while the host's code runs,
// which may leave by longjmp.
const ThreadPointer innermost;

// Clears the flags first: a flag whose exception is unmasked by the new control word would raise at the next
// instruction.
void set(const FloatingPointControl& control) noexcept {
  asm volatile("fnclex" : : : "memory");
  asm volatile("fldcw %0" : : "m"(control.x87) : "memory");
  asm volatile("ldmxcsr %0" : : "m"(control.sse) : "memory");
}

}  // namespace

void DefaultFloatingPoint::enter() noexcept {
  // fnstenv does not raise a pending exception, unlike most x87 instructions, and masks all exceptions.
  asm volatile("fnstenv %0" : "=m"(x87_));
  asm volatile("stmxcsr %0" : "=m"(sse_));
  set(kDefaultControl);
  entered_ = true;
  outer_ = static_cast<DefaultFloatingPoint*>(innermost.get());
  innermost.set(this);
}

void DefaultFloatingPoint::leave() noexcept {
  innermost.set(outer_);
  give_host_its_own();
}

void DefaultFloatingPoint::give_host_its_own() const noexcept {
  asm volatile("fldenv %0" : : "m"(x87_) : "memory");
  asm volatile("ldmxcsr %0" : : "m"(sse_) : "memory");
}

HostFloatingPoint::HostFloatingPoint() noexcept
    : entered_(static_cast<DefaultFloatingPoint*>(innermost.get())), inside_(FloatingPointControl::now()) {
  if (entered_ == nullptr) return;
  innermost.set(nullptr);
  entered_->give_host_its_own();
}

HostFloatingPoint::~HostFloatingPoint() {
  if (FloatingPointControl::now() != inside_) set(inside_);
  if (entered_ != nullptr) innermost.set(entered_);
}

}  // namespace qvr::windows
