// The system's part of the surroundings. Defined by windows/ or posix/.
#pragma once

#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

// See Surroundings.
std::optional<Text> environment_variable(TextView name);
std::optional<Text> ask_secret(TextView prompt);
std::optional<Text> standard_input_line();
std::unique_ptr<Database> open_database(TextView connection_string, std::int32_t connect_timeout);

}  // namespace qvr::script_tool
