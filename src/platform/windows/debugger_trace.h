#pragma once

#include "base/trace.h"

namespace qvr::windows {

// The trace's sink: the line goes to the debugger's output (OutputDebugString) with the library's name in front.
void trace_to_debugger(TextView line) noexcept;

}  // namespace qvr::windows
