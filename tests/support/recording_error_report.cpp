#include "support/recording_error_report.h"

#include "support/faults_paused.h"

namespace qvr::tests {

void RecordingErrorReport::Informar(const services::ErrorNotice& notice) {
  const FaultsPaused paused;
  const FailureDetail& failure = notice.failure;
  Text line = join({decimal(failure.number), u"|", failure.description, u"|", failure.source, u"|",
                    decimal(number_of(notice.motor)), u"|", notice.label});
  for (const services::AdoError& error : notice.errors) line += join({u"|", error.description});
  log_.add("Report", line);
  notices.push_back(notice);
  if (fails) throw RuntimeFailure(failure_number::kCannotCreateObject);
}

}  // namespace qvr::tests
