// An error report that keeps what it is told.
#pragma once

#include <vector>

#include "services/error_report.h"
#include "support/call_log.h"

namespace qvr::tests {

class RecordingErrorReport final : public services::ErrorReport {
 public:
  explicit RecordingErrorReport(CallLog& log) : log_(log) {}
  // Logged as "Report: number|description|source|engine|label", then "|" and each error's description.
  void Informar(const services::ErrorNotice& notice) override;

  std::vector<services::ErrorNotice> notices;
  bool fails = false;

 private:
  CallLog& log_;
};

}  // namespace qvr::tests
