// A run's events, kept.
#pragma once

#include <vector>

#include "script/qvrscr.h"

namespace qvr::tests {

struct RunEvents final : ScriptEvents {
  void Progreso(const Text& Mensaje) noexcept override { progress.push_back(Mensaje); }
  void Terminado(bool Exito) noexcept override { ends.push_back(Exito); }
  std::vector<Text> progress;
  std::vector<bool> ends;
};

}  // namespace qvr::tests
