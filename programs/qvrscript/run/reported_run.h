// A run with everything that is told of it.
#pragma once

#include "qvrscript/run/report.h"
#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

// Returns the exit code. Nothing is run where a part of the text never would be, unless the user goes on (--continue).
int run_and_report(const RunReport& report, TextView connection_string, const Surroundings& surroundings,
                   Console& console);

}  // namespace qvr::script_tool
