// The names of the scripts in one folder.
#pragma once

#include "qvrscript/finding.h"

namespace qvr::script_tool {

// Names that neither a definition nor an update finds, and updates that do not follow on each other.
void check_names(TextView folder, const std::vector<Text>& names, std::vector<Finding>& found);

}  // namespace qvr::script_tool
