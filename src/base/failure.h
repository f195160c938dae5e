// Failures and their policies. Inner code throws; each public member names its policy in its first line. Every policy
// tells the failure to the trace. With failure.cpp the only core files with catch (...).
#pragma once

#include <cstdint>
#include <exception>
#include <utility>

#include "base/text.h"
#include "base/trace.h"

namespace qvr {

// Run-time error numbers of the Visual Basic family, which hosts show to their users.
namespace failure_number {
inline constexpr std::int32_t kInvalidArgument = 5;
inline constexpr std::int32_t kOverflow = 6;
inline constexpr std::int32_t kOutOfMemory = 7;
inline constexpr std::int32_t kSubscript = 9;
inline constexpr std::int32_t kTypeMismatch = 13;
inline constexpr std::int32_t kFile = 75;
inline constexpr std::int32_t kObjectNotSet = 91;
inline constexpr std::int32_t kInvalidNull = 94;
inline constexpr std::int32_t kCannotCreateObject = 429;
}  // namespace failure_number

inline constexpr TextView kOwnSource = u"QVRlib21";

// What went wrong, as an error report shows it.
struct FailureDetail {
  std::int32_t number = 0;
  Text description;
  Text source;
  SourcePlace thrown = {};  // where this code threw it
};

class RuntimeFailure : public std::exception {
 public:
  explicit RuntimeFailure(std::int32_t number, Text description = {}, Text source = Text(kOwnSource),
                          SourcePlace thrown = SourcePlace::here());
  explicit RuntimeFailure(FailureDetail detail) : detail_(std::move(detail)) {}
  const FailureDetail& detail() const { return detail_; }
  const char* what() const noexcept override { return "QVRlib21 run-time failure"; }

 private:
  FailureDetail detail_;
};

// A failure that `or_raised` lets reach the caller; to all other policies it is an ordinary one.
class CallerFailure : public RuntimeFailure {
 public:
  using RuntimeFailure::RuntimeFailure;
};

// The default description of an error number.
Text description_of(std::int32_t number);

// The exception being handled as a failure, whatever its type; call inside a catch block only.
FailureDetail current_failure();

// Tells the trace of the exception being handled; call inside a catch block only. A description that comes from outside
// is left out, as it may quote a connection string or a value.
void trace_current_failure(TextView owner, SourcePlace place) noexcept;

// In all policies `owner` is the class for the trace, which has the member's name from the place of the call.

// Silent policy: the body's result, or `fallback` when it throws.
template <class R, class Body>
R or_default(TextView owner, R fallback, Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    trace_current_failure(owner, place);
    return fallback;
  }
}

// Silent policy for texts: the body appends to the result; when it throws, the result is what was appended so far.
template <class Body>
Text or_built_so_far(TextView owner, Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
  Text built;
  try {
    std::forward<Body>(body)(built);
  } catch (...) {
    trace_current_failure(owner, place);
  }
  return built;
}

// Policy of the members that raise errors: a CallerFailure is rethrown, every other exception gives `fallback`.
template <class R, class Body>
R or_raised(TextView owner, R fallback, Body&& body, SourcePlace place = SourcePlace::here()) {
  try {
    return std::forward<Body>(body)();
  } catch (const CallerFailure&) {
    throw;
  } catch (...) {
    trace_current_failure(owner, place);
    return fallback;
  }
}

// Error-reporting policy: when the body throws, calls `report` with the failure and gives `fallback`. Exceptions of
// `report` itself are only traced: the result must not depend on it.
template <class R, class Body, class Report>
R or_reported(TextView owner, R fallback, Body&& body, Report&& report,
              SourcePlace place = SourcePlace::here()) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    trace_current_failure(owner, place);
    try {
      std::forward<Report>(report)(current_failure());
    } catch (...) {
      trace_current_failure(owner, place);
    }
    return fallback;
  }
}

}  // namespace qvr
