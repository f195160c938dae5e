#include "services/builtin_script_reader.h"

#include <algorithm>
#include <vector>

#include "base/failure.h"
#include "services/script_text.h"

namespace qvr::services {

// Read in chunks, as the size is unknown: a growing buffer would need up to three times the memory. The first ones are
// small, as clearing a megabyte takes longer than reading a usual script.
std::string script_bytes(Files& files, TextView Ruta) {
  constexpr std::size_t kFirst = std::size_t{1} << 16, kAtOnce = std::size_t{1} << 20;
  constexpr std::size_t kMost = BuiltinScriptReader::kLargest + 1;
  const auto file = files.open(Ruta);
  std::vector<std::string> pieces;
  std::size_t size = 0;
  for (bool whole = false; !whole;) {
    std::string& piece = pieces.emplace_back(std::min({std::max(kFirst, size), kAtOnce, kMost - size}), '\0');
    const std::size_t count = file->read(piece);
    whole = count < piece.size();
    piece.resize(count);
    if (whole) piece.shrink_to_fit();  // do not keep a whole chunk for a small file
    size += count;
    if (size == kMost) throw RuntimeFailure(failure_number::kFile);
  }
  if (pieces.size() == 1) return std::move(pieces.front());
  std::string bytes;
  bytes.reserve(size);
  for (const std::string& piece : pieces) bytes += piece;
  return bytes;
}

std::optional<Text> BuiltinScriptReader::Leer(TextView, TextView Ruta) {
  Text text;
  {
    const std::string bytes = script_bytes(*files_, Ruta);
    text = decoded_script(bytes, *files_);
  }  // the bytes are freed before the text is copied
  return with_whole_line_breaks(std::move(text));
}

}  // namespace qvr::services
