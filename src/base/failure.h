// Failures, expressed once. Inner code throws; each public member names its policy in its first line. The only core
// header that catches everything.
#pragma once

#include <cstdint>
#include <exception>
#include <utility>

#include "base/text.h"

namespace qvr {

// Numbers of the Visual Basic family, so that a host shows the run-time error its users know.
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

// What went wrong, as an error report shows it.
struct FailureDetail {
  std::int32_t number = 0;
  Text description;
  Text source;
};

class RuntimeFailure : public std::exception {
 public:
  explicit RuntimeFailure(std::int32_t number, Text description = {}, Text source = u"QVRlib21");
  explicit RuntimeFailure(FailureDetail detail) : detail_(std::move(detail)) {}
  const FailureDetail& detail() const { return detail_; }
  const char* what() const noexcept override { return "QVRlib21 run-time failure"; }

 private:
  FailureDetail detail_;
};

// A failure that one policy lets out to the caller; for all others it is one like any other.
class CallerFailure : public RuntimeFailure {
 public:
  using RuntimeFailure::RuntimeFailure;
};

// The text that goes with a number when whoever throws has none of its own.
Text description_of(std::int32_t number);

// The failure being handled, whatever was thrown; call inside a handler only.
FailureDetail current_failure();

// Silent policy: the body's result, or `fallback` when it throws.
template <class R, class Body>
R or_default(R fallback, Body&& body) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    return fallback;
  }
}

// Silent policy for texts: the body appends to the result, and what it had appended when it threw is the result.
template <class Body>
Text or_built_so_far(Body&& body) noexcept {
  Text built;
  try {
    std::forward<Body>(body)(built);
  } catch (...) {
  }
  return built;
}

// The policy of the few members whose caller is told by an error: a CallerFailure passes, `fallback` for all else.
template <class R, class Body>
R or_raised(R fallback, Body&& body) {
  try {
    return std::forward<Body>(body)();
  } catch (const CallerFailure&) {
    throw;
  } catch (...) {
    return fallback;
  }
}

// Error-reporting policy: `fallback` when the body throws, after `report` has been given the failure. A report that
// throws itself is dropped: the caller's answer does not depend on it.
template <class R, class Body, class Report>
R or_reported(R fallback, Body&& body, Report&& report) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    try {
      std::forward<Report>(report)(current_failure());
    } catch (...) {
    }
    return fallback;
  }
}

}  // namespace qvr
