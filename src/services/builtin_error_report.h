// The library's own error report: one message box.
#pragma once

#include "platform/platform.h"
#include "services/error_report.h"

namespace qvr::services {

// The text of the box: a caption for the kind of error, the error and the Errors of the ADO connection, and the failed
// operation.
Text error_report_text(const ErrorNotice& notice);

class BuiltinErrorReport : public ErrorReport {
 public:
  explicit BuiltinErrorReport(MessageBoxes& boxes) : boxes_(&boxes) {}
  void Informar(const ErrorNotice& notice) override { boxes_->show(error_report_text(notice), BoxButtons::Ok); }

 private:
  MessageBoxes* boxes_;
};

}  // namespace qvr::services
