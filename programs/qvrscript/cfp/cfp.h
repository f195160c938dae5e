// The commands `cfp`: connection files.
#pragma once

#include "qvrscript/command_line/requests.h"
#include "qvrscript/output/console.h"
#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

// Each gives the exit code, and throws UsageFailure for what the command line, the environment or the terminal should
// have told and did not. Nothing is written before all is known.

// Writes a connection file.
int cfp_new(const CfpNewRequest& asked, const Request& request, const Surroundings& surroundings, Console& console);

// Shows the fields; passwords only where they are asked for.
int cfp_show(const CfpShowRequest& asked, const Request& request, const Surroundings& surroundings, Console& console);

// Tells whether the library can read the file, and if not what is wrong with it.
int cfp_check(const CfpCheckRequest& asked, const Request& request, const Surroundings& surroundings, Console& console);

// Writes the file anew for another identification.
int cfp_rekey(const CfpRekeyRequest& asked, const Request& request, const Surroundings& surroundings, Console& console);

// Opens the connection and tells what is behind it.
int cfp_test(const CfpTestRequest& asked, const Request& request, const Surroundings& surroundings, Console& console);

}  // namespace qvr::script_tool
