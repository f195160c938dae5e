// UTF-8 for what leaves the process as bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/text.h"

namespace qvr {

// UTF-8 of any text. A lone surrogate, which strict UTF-8 cannot carry, is written as its three bytes, so that every
// text comes back unchanged from `from_utf8`.
std::string to_utf8(TextView text);

// Decodes UTF-8; nothing for bytes that `to_utf8` could not have written.
std::optional<Text> from_utf8(std::string_view bytes);

}  // namespace qvr
