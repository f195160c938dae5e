// The application family's text-protection component.
#pragma once

#include "com/clients/late_object.h"
#include "services/text_protection.h"

namespace qvr::com {

class ComTextProtection final : public services::TextProtection {
 public:
  static constexpr wchar_t kProgramId[] = L"QVRServicios.ProteccionTexto";

  explicit ComTextProtection(LateObject component) : component_(std::move(component)) {}
  // Runs at thread detach, under the loader lock and maybe after CoUninitialize: no COM call is allowed, not even
  // Release.
  ~ComTextProtection() override { component_.abandon(); }

  Text Cifrar(TextView Clave, TextView Texto) override;
  Text Descifrar(TextView Clave, TextView Texto) override;

 private:
  LateObject component_;
};

}  // namespace qvr::com
