// A ComPtr to an object of the host or of a component, whose code must run under the host's floating-point state.
#pragma once

#include <utility>

#include "com/com_ptr.h"
#include "platform/windows/floating_point.h"

namespace qvr::com {

using windows::HostFloatingPoint;

// Calls host code under the host's floating-point state.
template <class Call>
auto by_host(Call&& call) {
  const HostFloatingPoint host;
  return std::forward<Call>(call)();
}

template <class I>
using HostPtr = ComPtr<I, HostFloatingPoint>;

}  // namespace qvr::com
