// The report of a failure that the user has to see, in the thread's language.
#pragma once

#include "frame/failure.h"

namespace qvr::dialect {

// One message box with the object, the operation that failed and the error's number and description.
void show_failure(TextView source, TextView detail, const FailureDetail& failure);

}  // namespace qvr::dialect
