// Failures and their policies. Inner code throws; each public member names its policy in its first line. The only core
// header with catch (...).
#pragma once

#include <cstdint>
#include <exception>
#include <utility>

#include "base/text.h"

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

// A failure that `or_raised` lets reach the caller; to all other policies it is an ordinary one.
class CallerFailure : public RuntimeFailure {
 public:
  using RuntimeFailure::RuntimeFailure;
};

// The default description of an error number.
Text description_of(std::int32_t number);

// The exception being handled as a failure, whatever its type; call inside a catch block only.
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

// Silent policy for texts: the body appends to the result; when it throws, the result is what was appended so far.
template <class Body>
Text or_built_so_far(Body&& body) noexcept {
  Text built;
  try {
    std::forward<Body>(body)(built);
  } catch (...) {
  }
  return built;
}

// Policy of the members that raise errors: a CallerFailure is rethrown, every other exception gives `fallback`.
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

// Error-reporting policy: when the body throws, calls `report` with the failure and gives `fallback`. Exceptions of
// `report` itself are swallowed: the result must not depend on it.
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
