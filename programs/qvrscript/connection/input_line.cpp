#include "qvrscript/connection/input_line.h"

#include <algorithm>
#include <array>

#include "base/utf8.h"
#include "qvrscript/command_line/usage_failure.h"

namespace qvr::script_tool {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Wipes a line at the end: it may be a secret.
struct Wiping {
  std::string& bytes;
  ~Wiping() { wipe_memory(bytes.data(), bytes.size()); }
};

}  // namespace

std::optional<std::string> first_line(const ReadInput& read) {
  std::string line;
  const Wiping wiping{line};
  line.reserve(kLongestInputLine);  // growing would leave copies
  std::array<char, 4096> buffer;
  std::size_t end = std::string::npos;
  for (;;) {
    const std::size_t count = read(buffer);
    const std::string_view got(buffer.data(), count);
    if (line.size() + std::min(got.find('\n'), got.size()) > kLongestInputLine) {
      wipe_memory(buffer.data(), buffer.size());
      throw UsageFailure({u"what was typed or piped in is longer than 64 KiB"});
    }
    end = got.find('\n');
    line.append(got.substr(0, end));
    wipe_memory(buffer.data(), buffer.size());
    if (count == 0 && line.empty()) return std::nullopt;
    if (count == 0 || end != std::string::npos) break;
  }
  std::string_view found = line;
  if (found.ends_with('\r')) found.remove_suffix(1);
  if (found.starts_with(kByteOrderMark)) found.remove_prefix(kByteOrderMark.size());
  return std::string(found);
}

Text text_of_line(std::string&& bytes) {
  const Wiping wiping{bytes};
  auto text = from_utf8(bytes);
  if (!text) throw UsageFailure({u"what was typed or piped in is no UTF-8"});
  return std::move(*text);
}

}  // namespace qvr::script_tool
