// Definitions and updates: their scripts, put together by the library's own members.
#pragma once

#include "qvrscript/command_line/requests.h"
#include "qvrscript/run/assembly.h"
#include "script/script_preparation.h"

namespace qvr::script_tool {

// The scripts of a definition or an update by name, in the order in which they run.
struct ScriptNames {
  std::vector<Text> pending;
  std::vector<Text> done;  // updates that the database has already
  // Of an update: some script ends with the version that the database has, and none begins there.
  bool up_to_date = false;
  // Two scripts between which versions are missing; empty where the chain is whole.
  std::vector<Text> gaps;
};

// `version` of an update. Throws ToolFailure where there are none, or versions overlap, or names differ in case only.
ScriptNames script_names(const LoadRequest& load, std::int32_t version);

// The scripts' texts joined, with their placeholders replaced and bodies encrypted. `identification` is what a reader
// of protected scripts is given. Throws ToolFailure where one cannot be read, or is empty.
Assembly loaded(const LoadRequest& load, std::int32_t version, const std::vector<Text>& names,
                const ScriptAccounts& accounts, TextView identification);

// The folder without a separator at its end.
TextView folder_of(const LoadRequest& load);

}  // namespace qvr::script_tool
