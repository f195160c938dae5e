// The trace: one line for each failure that becomes a default result or an HRESULT, since such a result does not say
// why. It goes to one sink, which each program sets: the debugger's output in the DLL.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/text.h"

namespace qvr {

// The place of a call: as a default argument, that of the caller. Not std::source_location, which clang 14 lacks.
struct SourcePlace {
  const char* file = nullptr;
  int line = 0;
  const char* function = "";

  static constexpr SourcePlace here(const char* file = __builtin_FILE(), int line = __builtin_LINE(),
                                    const char* function = __builtin_FUNCTION()) noexcept {
    return {file, line, function};
  }
};

struct TracedFailure {
  TextView owner;  // the class; empty for what belongs to none
  std::string_view member;
  std::int32_t number = 0;
  TextView description;  // must not hold anything of the caller's, which may be secret
  SourcePlace place;
};

// Gets "QVRcfp.Crear: 75 Path/File access error (windows/files.cpp:8)". Called on the thread of the failure.
using TraceSink = void (*)(TextView line) noexcept;

// Null for none, which is the default. Returns the former one.
TraceSink set_trace_sink(TraceSink sink) noexcept;

// Needs no memory: out of memory is one of the failures. A line that is too long is cut.
void trace(const TracedFailure& failure) noexcept;

}  // namespace qvr
