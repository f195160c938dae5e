// The floating-point state of a thread: how the processor rounds and to how many bits, what becomes of denormal
// numbers, and which exceptions stop the program. Hosts set it as they like. The library calculates under the state in
// which Windows starts every thread, and code of the host and of others runs under the host's.
#pragma once

#include <cstdint>

namespace qvr::windows {

// What arithmetic depends on: the control words of the x87 and of SSE. Every processor that Windows 7 supports has
// both.
struct FloatingPointControl {
  std::uint16_t x87;
  std::uint32_t sse;  // MXCSR, whose low bits are flags

  static FloatingPointControl now() noexcept {
    FloatingPointControl control;
    asm volatile("fnstcw %0" : "=m"(control.x87));
    asm volatile("stmxcsr %0" : "=m"(control.sse));
    return control;
  }

  // Without bits that have no effect, and without flags.
  friend bool operator==(const FloatingPointControl& one, const FloatingPointControl& other) noexcept {
    return ((one.x87 ^ other.x87) & 0x0F3F) == 0 && ((one.sse ^ other.sse) & 0xFFC0) == 0;
  }
};

// 53 bits, to the nearest, no exception stops the program.
inline constexpr FloatingPointControl kDefaultControl{0x027F, 0x1F80};

// As long as it lives, the thread's state is the default one; then the host has its own again, with its flags and with
// an exception that was pending. Where a call enters the library; within one another, what calls back enters too.
class DefaultFloatingPoint {
 public:
  DefaultFloatingPoint() noexcept {
    if (FloatingPointControl::now() != kDefaultControl) enter();
  }
  ~DefaultFloatingPoint() {
    if (entered_) leave();
  }
  DefaultFloatingPoint(const DefaultFloatingPoint&) = delete;
  DefaultFloatingPoint& operator=(const DefaultFloatingPoint&) = delete;

 private:
  friend class HostFloatingPoint;
  void enter() noexcept;
  void leave() noexcept;
  void give_host_its_own() const noexcept;

  bool entered_ = false;
  std::uint32_t x87_[7];  // environment: control, status and tag words, and where a pending exception came from
  std::uint32_t sse_;
  DefaultFloatingPoint* outer_;
};

// As long as it lives, the thread's state is the one that the host had when it called. Around every call of code that
// is neither the library's nor the system's. What that code changes in the state ends with it.
class HostFloatingPoint {
 public:
  HostFloatingPoint() noexcept;
  ~HostFloatingPoint();
  HostFloatingPoint(const HostFloatingPoint&) = delete;
  HostFloatingPoint& operator=(const HostFloatingPoint&) = delete;

 private:
  DefaultFloatingPoint* const entered_;  // null where the host's state is the default one
  const FloatingPointControl inside_;
};

}  // namespace qvr::windows
