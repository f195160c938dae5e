// The command `list`: shows what loading a definition or an update would run.
#pragma once

#include "qvrscript/arguments.h"
#include "qvrscript/report.h"

namespace qvr::script_tool {

int list(const Arguments& arguments, const Console& console);

}  // namespace qvr::script_tool
