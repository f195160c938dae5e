// Hands a failure of the runner to the error-reporting service.
#pragma once

#include "frame/failure.h"
#include "services/ado.h"

namespace qvr {

// With every error that the connection (if there is one) still holds.
void report_failure(const FailureDetail& failure, Text label, std::int32_t motor, services::AdoConnection* connection);

}  // namespace qvr
