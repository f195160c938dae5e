// Scripts that the library does not see; posix/ and windows/ implement it.
#pragma once

#include <vector>

#include "base/text.h"

namespace qvr::script_tool {

// The names of a folder's scripts that are no Unicode and that listing it passes over, with \xnn for bytes, sorted.
// Empty for a folder that cannot be read.
std::vector<Text> names_passed_over(TextView folder);

}  // namespace qvr::script_tool
