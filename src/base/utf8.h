// Conversion between UTF-16 and UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/text.h"

namespace qvr {

// UTF-8 of any text. A lone surrogate is encoded as three bytes (WTF-8), so that `from_utf8` gives every text back
// unchanged.
std::string to_utf8(TextView text);

// Decodes UTF-8; nothing for bytes that `to_utf8` could not have written.
std::optional<Text> from_utf8(std::string_view bytes);

}  // namespace qvr
