// The engines as this program's users write them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "base/text.h"

namespace qvr::script_tool {

inline constexpr std::int32_t kUnknownEngine = 0, kJet = 1, kSqlServer = 2, kOracle = 3;
inline constexpr std::array kEngines = {kJet, kSqlServer, kOracle};

// "jet", "sqlserver" or "oracle", in any case; nothing for another word.
std::optional<std::int32_t> engine_named(TextView word);
TextView engine_word(std::int32_t engine);   // as it is written on the command line
TextView engine_title(std::int32_t engine);  // as people read it

// By the tag in a script's file name; 0 where the name has none.
std::int32_t engine_of_file(TextView name);

}  // namespace qvr::script_tool
