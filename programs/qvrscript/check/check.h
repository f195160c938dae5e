// The command `check`: finds what the runner would do with script files against their author's intention.
#pragma once

#include "base/engine.h"
#include "qvrscript/check/finding.h"
#include "qvrscript/command_line/requests.h"
#include "qvrscript/output/console.h"

namespace qvr::script_tool {

int check(const CheckRequest& check, const Request& request, Console& console);

// The findings of all rules in one script, by line.
std::vector<Finding> findings_in(TextView path, std::string bytes, Engine engine);

}  // namespace qvr::script_tool
