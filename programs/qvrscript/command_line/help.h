// The help texts.
#pragma once

#include <optional>
#include <string_view>

#include "qvrscript/command_line/arguments.h"

namespace qvr::script_tool {

// Of one command, or of all.
std::string_view help_text(std::optional<Action> topic);

}  // namespace qvr::script_tool
