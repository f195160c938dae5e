// The commands `run`, `install` and `update`.
#pragma once

#include "qvrscript/command_line/requests.h"
#include "qvrscript/output/console.h"
#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

int run(const RunRequest& run, const Request& request, const Surroundings& surroundings, Console& console);
int install_or_update(const LoadRequest& load, const Request& request, const Surroundings& surroundings,
                      Console& console);

}  // namespace qvr::script_tool
