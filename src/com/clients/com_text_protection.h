// The application family's text-protection component.
#pragma once

#include "com/clients/component.h"
#include "services/text_protection.h"

namespace qvr::com {

class ComTextProtection final : public services::TextProtection {
 public:
  static constexpr wchar_t kProgramId[] = L"QVRServicios.ProteccionTexto";

  explicit ComTextProtection(Component component) : component_(std::move(component)) {}

  Text Cifrar(TextView Clave, TextView Texto) override;
  Text Descifrar(TextView Clave, TextView Texto) override;

 private:
  Component component_;
};

}  // namespace qvr::com
