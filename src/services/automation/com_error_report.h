// The application family's error-reporting component.
#pragma once

#include "services/automation/late_object.h"
#include "services/error_report.h"

namespace qvr::automation {

class ComErrorReport final : public services::ErrorReport {
 public:
  static constexpr wchar_t kProgramId[] = L"QVRServicios.InformeErrores";

  explicit ComErrorReport(LateObject component) : component_(std::move(component)) {}
  // Runs when the thread leaves; see ComTextProtection.
  ~ComErrorReport() override { component_.abandon(); }

  void Informar(const services::ErrorNotice& notice) override;

 private:
  LateObject component_;
};

}  // namespace qvr::automation
