// Base32 (RFC 4648) in lower case: the encoding is canonical, and no two encodings differ in case only.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/text.h"
#include "platform/platform.h"

namespace qvr::services {

// Appends the bytes in the alphabet a-z, 2-7, without padding.
void append_base32(Text& text, Bytes bytes);

// Decodes; nothing for a text that `append_base32` could not have written.
std::optional<std::vector<std::uint8_t>> from_base32(TextView text);

}  // namespace qvr::services
