// Hands a failed command or procedure call to the error-reporting service.
#pragma once

#include "base/engine.h"
#include "base/failure.h"
#include "services/ado.h"

namespace qvr {

struct FailedOperation {
  Text label;
  Text object = {};  // what it worked on; empty where the label says it
};

// With every error that the connection (if there is one) still holds.
void report_failure(const FailureDetail& failure, FailedOperation operation, Engine motor,
                    services::AdoConnection* connection);

}  // namespace qvr
