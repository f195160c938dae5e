// ADO for a run, of either system.
#pragma once

#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

// `connect_timeout` in seconds, 0: no limit.
std::unique_ptr<RunAdo> make_run_ado(std::int32_t connect_timeout);

}  // namespace qvr::script_tool
