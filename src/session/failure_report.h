// Hands a failed command or procedure call to the error-reporting service.
#pragma once

#include "base/engine.h"
#include "base/failure.h"
#include "services/ado.h"

namespace qvr {

struct FailedOperation {
  Text label;
  Text object = {};  // the procedure, say; empty where the label says it
};

// Includes the Errors collection of the connection; null where there is none.
void report_failure(const FailureDetail& failure, FailedOperation operation, Engine motor,
                    services::AdoConnection* connection);

}  // namespace qvr
