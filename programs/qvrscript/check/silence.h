// Events without a listener.
#pragma once

#include "script/qvrscr.h"

namespace qvr::script_tool {

struct Silence final : ScriptEvents {
  void Progreso(const Text&) noexcept override {}
  void Terminado(bool) noexcept override {}
};

}  // namespace qvr::script_tool
