// The application family's script-reading component.
#pragma once

#include "com/clients/component.h"
#include "services/script_reader.h"

namespace qvr::com {

class ComScriptReader final : public services::ScriptReader {
 public:
  static constexpr wchar_t kProgramId[] = L"QVRServicios.LectorScripts";

  explicit ComScriptReader(Component component) : component_(std::move(component)) {}

  std::optional<Text> Leer(TextView ID, TextView Ruta) override;

 private:
  Component component_;
};

}  // namespace qvr::com
