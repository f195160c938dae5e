// Paths on the command line.
#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "base/text.h"

namespace qvr::script_tool {

TextView without_last_separator(TextView path);
TextView file_name(TextView path);

// For the standard library; "\\" separates as everywhere else.
std::filesystem::path system_path(TextView path);

// The names of a folder's plain files, sorted; nothing when the folder cannot be read.
std::optional<std::vector<Text>> names_in(TextView folder);

}  // namespace qvr::script_tool
