// The first line of an input, whose other lines nobody reads.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>

#include "base/text.h"

namespace qvr::script_tool {

// Up to this many bytes, its end included: no connection string is longer.
inline constexpr std::size_t kLongestInputLine = std::size_t{64} << 10;

// Fills a part of the buffer and tells how much; 0 at the end, or where nothing can be read.
using ReadInput = std::function<std::size_t(std::span<char> buffer)>;

// The bytes of the line without its end and a byte-order mark; nothing for an empty input. Throws UsageFailure for a
// longer line.
std::optional<std::string> first_line(const ReadInput& read);

// Throws UsageFailure where the bytes are no UTF-8, and wipes them.
Text text_of_line(std::string&& bytes);

}  // namespace qvr::script_tool
