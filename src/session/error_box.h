// The report of a failure that the user has to see, in the thread's language.
#pragma once

#include "base/failure.h"

namespace qvr::dialect {

// One message box with the object, the operation that failed and the error's number and description.
void show_failure(TextView source, TextView detail, const FailureDetail& failure);

// The policy of members that show their failures: `fallback` when the body throws, after the box.
template <class R, class Body>
R or_shown(R fallback, TextView source, TextView detail, Body&& body) noexcept {
  return or_reported(std::move(fallback), std::forward<Body>(body),
                     [&](const FailureDetail& failure) { show_failure(source, detail, failure); });
}

}  // namespace qvr::dialect
