#include "session/failure_report.h"

#include <algorithm>

#include "session/thread_state.h"

namespace qvr {
namespace {

// The provider's errors behind this failure. ADO clears its Errors collection only when the provider fails again: after
// a failure of ADO itself or of the library it holds stale errors, none of which has the failure's number.
std::vector<services::AdoError> errors_behind(const FailureDetail& failure, services::AdoConnection& connection) {
  auto errors = connection.errors();
  const bool of_this_call = std::ranges::any_of(errors, [&](const services::AdoError& error) {
    return error.number == failure.number;
  });
  if (!of_this_call) errors.clear();
  return errors;
}

}  // namespace

void report_failure(const FailureDetail& failure, FailedOperation operation, Engine motor,
                    services::AdoConnection* connection) {
  services::ErrorNotice notice;
  notice.failure = failure;
  notice.motor = motor;
  notice.label = std::move(operation.label);
  notice.object = std::move(operation.object);
  // Reading the Errors of a broken connection can fail too; the failure itself is reported anyway.
  using Errors = std::vector<services::AdoError>;
  if (connection != nullptr)
    notice.errors = or_default({}, Errors(), [&] { return errors_behind(failure, *connection); });
  thread_state().error_report().Informar(notice);
}

}  // namespace qvr
