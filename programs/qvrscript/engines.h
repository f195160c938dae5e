// Engines on the command line and in output.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "base/engine.h"
#include "base/text.h"

namespace qvr::script_tool {

inline constexpr std::array kEngines = {Engine::Jet, Engine::SqlServer, Engine::Oracle};

// "jet", "sqlserver" or "oracle", in any case; nothing for another word.
std::optional<Engine> engine_named(TextView word);
TextView engine_word(Engine engine);   // on the command line
TextView engine_title(Engine engine);  // for output

// By the tag in a script's file name; None where the name has none.
Engine engine_of_file(TextView name);

}  // namespace qvr::script_tool
