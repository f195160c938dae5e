// The application family's script-reading component.
#pragma once

#include "com/clients/late_object.h"
#include "services/script_reader.h"

namespace qvr::com {

class ComScriptReader final : public services::ScriptReader {
 public:
  static constexpr wchar_t kProgramId[] = L"QVRServicios.LectorScripts";

  explicit ComScriptReader(LateObject component) : component_(std::move(component)) {}
  // Runs at thread detach; see ComTextProtection.
  ~ComScriptReader() override { component_.abandon(); }

  std::optional<Text> Leer(TextView ID, TextView Ruta) override;

 private:
  LateObject component_;
};

}  // namespace qvr::com
