#include "services/failure_report.h"

#include "frame/thread_state.h"

namespace qvr {

void report_failure(const FailureDetail& failure, FailedOperation operation, std::int32_t motor,
                    services::AdoConnection* connection) {
  services::ErrorNotice notice;
  notice.failure = failure;
  notice.motor = motor;
  notice.label = std::move(operation.label);
  notice.object = std::move(operation.object);
  // A broken connection may not even tell its errors; the failure itself is reported all the same.
  using Errors = std::vector<services::AdoError>;
  if (connection != nullptr) notice.errors = or_default(Errors(), [&] { return connection->errors(); });
  thread_state().error_report().Informar(notice);
}

}  // namespace qvr
