// Paths as the user writes them.
#pragma once

#include <optional>
#include <vector>

#include "base/text.h"

namespace qvr::script_tool {

TextView without_last_separator(TextView path);
TextView file_name(TextView path);

// The names of a folder's plain files, in order; nothing where the path is no folder that can be read.
std::optional<std::vector<Text>> names_in(TextView folder);

}  // namespace qvr::script_tool
