// Message boxes for the user of the host, and the policy of members that show their failures in one.
#pragma once

#include "base/failure.h"

namespace qvr {

// Shows a message box with an OK button.
void tell(TextView text);

// One message box in the thread's language with the object, the operation that failed and the error's number and
// description.
void show_failure(TextView source, TextView detail, const FailureDetail& failure);

// The policy of members that show their failures: `fallback` when the body throws, after the box.
template <class R, class Body>
R or_shown(R fallback, TextView source, TextView detail, Body&& body) noexcept {
  return or_reported(std::move(fallback), std::forward<Body>(body),
                     [&](const FailureDetail& failure) { show_failure(source, detail, failure); });
}

}  // namespace qvr
