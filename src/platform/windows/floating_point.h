// The floating-point state of a thread: rounding mode, precision, denormals and exception masks of x87 and SSE. Hosts
// set it as they like. The library runs under the state in which Windows starts every thread; code of the host and of
// components runs under the host's.
#pragma once

#include <cstdint>

namespace qvr::windows {

// The control words of the x87 and of SSE. Processors without SSE are not supported.
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

// 53 bits, round to nearest, all exceptions masked.
inline constexpr FloatingPointControl kDefaultControl{0x027F, 0x1F80};

// Sets the default state while it lives and restores the host's, with its flags and a pending exception. Used where a
// call enters the library; nests when a call re-enters.
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
  std::uint32_t x87_[7];  // x87 environment, as fnstenv stores it
  std::uint32_t sse_;
  DefaultFloatingPoint* outer_;
};

// Restores the host's state while it lives, around every call of code that is neither the library's nor the system's.
// Changes that this code makes to the state are dropped.
class HostFloatingPoint {
 public:
  HostFloatingPoint() noexcept;
  ~HostFloatingPoint();
  HostFloatingPoint(const HostFloatingPoint&) = delete;
  HostFloatingPoint& operator=(const HostFloatingPoint&) = delete;

 private:
  DefaultFloatingPoint* const entered_;  // null if the host's state is the default one
  const FloatingPointControl inside_;
};

}  // namespace qvr::windows
