// The command `list`: shows what loading a definition or an update would run.
#pragma once

#include "qvrscript/command_line/arguments.h"
#include "qvrscript/output/report.h"

namespace qvr::script_tool {

int list(const Arguments& arguments, const Console& console);

}  // namespace qvr::script_tool
