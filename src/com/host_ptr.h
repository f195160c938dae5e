// A reference to an object of the host's or of a component's, whose code expects the host's floating-point state.
#pragma once

#include <utility>

#include "com/com_ptr.h"
#include "platform/windows/floating_point.h"

namespace qvr::com {

using windows::HostFloatingPoint;

// What the call gives that runs the host's code.
template <class Call>
auto by_host(Call&& call) {
  const HostFloatingPoint host;
  return std::forward<Call>(call)();
}

template <class I>
using HostPtr = ComPtr<I, HostFloatingPoint>;

}  // namespace qvr::com
