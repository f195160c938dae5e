// Bytes as lower-case letters and digits: one spelling for each sequence of bytes, and no two that differ in case only.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/text.h"
#include "platform/platform.h"

namespace qvr::services {

// Appends the bytes in the alphabet a-z, 2-7, without padding.
void append_base32(Text& text, Bytes bytes);

// The bytes; nothing for a text that `append_base32` does not write.
std::optional<std::vector<std::uint8_t>> from_base32(TextView text);

}  // namespace qvr::services
