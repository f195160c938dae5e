#include "automation/floating_point_state.h"

#include <cstdio>

namespace qvr::tests {
namespace {

// The x87 environment.
struct Environment {
  std::uint32_t control, status, tags, instruction[4];
};

Environment environment() {
  Environment now;
  asm volatile("fnstenv %0" : "=m"(now) : : "memory");  // masks everything
  return now;
}

void set(const HostState& state) {
  Environment wanted = environment();
  wanted.control = (wanted.control & 0xFFFF0000) | state.x87;
  wanted.status = (wanted.status & 0xFFFFFF00) | state.pending;
  asm volatile("fldenv %0" : : "m"(wanted) : "memory");
  asm volatile("ldmxcsr %0" : : "m"(state.sse) : "memory");
}

}  // namespace

bool StatePicture::has_control_of(const HostState& state) const {
  return ((control ^ state.x87) & 0x0F3F) == 0 && ((sse ^ state.sse) & 0xFFC0) == 0;
}

std::string to_string(const StatePicture& picture) {
  char text[64];
  std::snprintf(text, sizeof text, "control %04x, status %04x, tags %04x, MXCSR %04x", picture.control, picture.status,
                picture.tags, static_cast<unsigned>(picture.sse));
  return text;
}

StatePicture state_now() {
  const Environment now = environment();
  asm volatile("fldenv %0" : : "m"(now) : "memory");
  StatePicture picture{static_cast<std::uint16_t>(now.control), static_cast<std::uint16_t>(now.status),
                       static_cast<std::uint16_t>(now.tags), 0};
  asm volatile("stmxcsr %0" : "=m"(picture.sse));
  return picture;
}

StateAround in_state(const HostState& state, const std::function<void()>& call) {
  StateAround around;
  set(state);
  around.before = state_now();
  call();
  around.after = state_now();
  set(kDefaultState);
  return around;
}

}  // namespace qvr::tests
