// Looks over script files for what the runner would do that their author may not mean.
#pragma once

#include "base/engine.h"
#include "qvrscript/arguments.h"
#include "qvrscript/finding.h"
#include "qvrscript/report.h"

namespace qvr::script_tool {

int check(const Arguments& arguments, const Console& console);

// The findings in one script by all rules, in the order of its lines.
std::vector<Finding> findings_in(TextView path, std::string bytes, Engine engine);

}  // namespace qvr::script_tool
