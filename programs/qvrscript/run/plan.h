// What an installation or an update would do, without doing it.
#pragma once

#include "qvrscript/output/console.h"
#include "qvrscript/run/loading.h"

namespace qvr::script_tool {

struct Plan {
  const Request& request;
  const LoadRequest& load;
  std::int32_t version;  // of an update
  const ScriptNames& names;
  const Assembly& assembly;
  const ScriptAccounts& accounts;  // with the placeholders of passwords in place of these
};

void write_plan(const Plan& plan, Console& console);

}  // namespace qvr::script_tool
