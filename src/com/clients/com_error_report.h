// The application family's error-reporting component.
#pragma once

#include <memory>

#include "com/clients/component.h"
#include "services/error_report.h"

namespace qvr::com {

class ComErrorReport final : public services::ErrorReport {
 public:
  static constexpr wchar_t kProgramId[] = L"QVRServicios.InformeErrores";

  // If the component fails, the other report shows the failure.
  ComErrorReport(Component component, std::unique_ptr<services::ErrorReport> otherwise)
      : component_(std::move(component)), otherwise_(std::move(otherwise)) {}

  void Informar(const services::ErrorNotice& notice) override;

 private:
  void hand_over(const services::ErrorNotice& notice);

  Component component_;
  std::unique_ptr<services::ErrorReport> otherwise_;
};

}  // namespace qvr::com
