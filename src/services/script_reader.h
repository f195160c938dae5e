// Reading of script files.
#pragma once

#include <optional>

#include "base/text.h"

namespace qvr::services {

class ScriptReader {
 public:
  virtual ~ScriptReader() = default;
  // The file's whole text; `ID` is the caller's identification, for protected files. Nothing when it cannot be read.
  // May throw.
  virtual std::optional<Text> Leer(TextView ID, TextView Ruta) = 0;
};

}  // namespace qvr::services
