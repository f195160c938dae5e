// The command `run`: runs a script file by QVRScr.
#pragma once

#include "qvrscript/command_line/arguments.h"
#include "qvrscript/output/report.h"
#include "session/thread_state.h"

namespace qvr::script_tool {

using MakeAdo = std::unique_ptr<services::Ado> (*)(const Platform&);

int run(const Arguments& arguments, const Console& console, MakeAdo make_ado);

}  // namespace qvr::script_tool
