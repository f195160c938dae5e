// Rules for the names of the scripts in one folder.
#pragma once

#include "qvrscript/check/finding.h"

namespace qvr::script_tool {

struct NameFinding {
  Text path;
  Finding finding;
};

// Names that neither a definition nor an update matches, and gaps and overlaps between updates.
std::vector<NameFinding> check_names(TextView folder, const std::vector<Text>& names);

}  // namespace qvr::script_tool
