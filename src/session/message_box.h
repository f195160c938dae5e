// Message boxes, and the failure policy of members that show one.
#pragma once

#include <type_traits>

#include "base/failure.h"

namespace qvr {

// Shows a message box with an OK button.
void tell(TextView text);

// A message box in the thread's language with class, member, and the error's number and description.
void show_failure(TextView source, TextView detail, const FailureDetail& failure);

// Policy of members that show their failures: when the body throws, a message box and false, 0 or an empty text.
template <class Body>
auto or_shown(TextView owner, TextView detail, Body&& body, SourcePlace place = SourcePlace::here()) noexcept {
  using Result = std::invoke_result_t<Body>;
  return or_reported(
      owner, Result(), std::forward<Body>(body),
      [&](const FailureDetail& failure) { show_failure(owner, detail, failure); }, place);
}

}  // namespace qvr
