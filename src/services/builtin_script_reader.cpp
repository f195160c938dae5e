#include "services/builtin_script_reader.h"

#include <algorithm>

#include "frame/failure.h"
#include "services/script_text.h"

namespace qvr::services {

std::string script_bytes(Files& files, TextView Ruta) {
  constexpr std::size_t kAtOnce = std::size_t{1} << 20, kMost = BuiltinScriptReader::kLargest + 1;
  const auto file = files.open(Ruta);
  std::string bytes;
  for (std::size_t filled = 0; filled < kMost;) {
    bytes.resize(std::min(filled + kAtOnce, kMost));
    const std::size_t wanted = bytes.size() - filled;
    const std::size_t count = file->read(std::span(bytes).subspan(filled));
    filled += count;
    if (count == wanted) continue;
    bytes.resize(filled);
    return bytes;
  }
  throw RuntimeFailure(failure_number::kFile);
}

std::optional<Text> BuiltinScriptReader::Leer(TextView, TextView Ruta) {
  Text text;
  {
    const std::string bytes = script_bytes(*files_, Ruta);
    text = decoded_script(bytes, *files_);
  }  // the bytes go before the text is copied
  return with_whole_line_breaks(std::move(text));
}

}  // namespace qvr::services
