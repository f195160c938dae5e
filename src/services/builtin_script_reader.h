// The library's own reader: plain text in any usual encoding.
#pragma once

#include <string>

#include "platform/platform.h"
#include "services/script_reader.h"

namespace qvr::services {

class BuiltinScriptReader : public ScriptReader {
 public:
  // A file beyond this is refused: what is read is held in memory up to three times over while it is prepared.
  // A 32-bit process has less room for that.
  static constexpr std::size_t kLargest = std::size_t{sizeof(void*) == 4 ? 128 : 512} << 20;

  explicit BuiltinScriptReader(Files& files) : files_(&files) {}
  std::optional<Text> Leer(TextView ID, TextView Ruta) override;

 private:
  Files* files_;
};

// A script file as it is stored. Throws failure 75 for what cannot be read or is beyond the largest size.
std::string script_bytes(Files& files, TextView Ruta);

}  // namespace qvr::services
