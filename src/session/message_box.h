// Message boxes, and the failure policy of members that show one.
#pragma once

#include "base/failure.h"

namespace qvr {

// Shows a message box with an OK button.
void tell(TextView text);

// A message box in the thread's language with class, member, and the error's number and description.
void show_failure(TextView source, TextView detail, const FailureDetail& failure);

// Policy of members that show their failures: when the body throws, a message box and `fallback`.
template <class R, class Body>
R or_shown(R fallback, TextView source, TextView detail, Body&& body) noexcept {
  return or_reported(std::move(fallback), std::forward<Body>(body),
                     [&](const FailureDetail& failure) { show_failure(source, detail, failure); });
}

}  // namespace qvr
