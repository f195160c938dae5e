// Rules for the names of the scripts in one folder.
#pragma once

#include "qvrscript/check/finding.h"

namespace qvr::script_tool {

// Reports names that neither a definition nor an update matches, and gaps and overlaps between updates.
void check_names(TextView folder, const std::vector<Text>& names, std::vector<Finding>& found);

}  // namespace qvr::script_tool
