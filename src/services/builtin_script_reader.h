// The library's own reader: plain text in any usual encoding.
#pragma once

#include <string>

#include "platform/platform.h"
#include "services/script_reader.h"

namespace qvr::services {

class BuiltinScriptReader : public ScriptReader {
 public:
  // Larger files are refused: preparing a script needs up to three copies in memory. Less in a 32-bit process because
  // of its address space.
  static constexpr std::size_t kLargest = std::size_t{sizeof(void*) == 4 ? 128 : 512} << 20;

  explicit BuiltinScriptReader(Files& files) : files_(&files) {}
  std::optional<Text> Leer(TextView ID, TextView Ruta) override;

 private:
  Files* files_;
};

// A script file's bytes. Throws failure 75 for a file that cannot be read or is too large.
std::string script_bytes(Files& files, TextView Ruta);

}  // namespace qvr::services
