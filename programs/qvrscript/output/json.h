// JSON documents.
#pragma once

#include <nlohmann/json.hpp>

#include "base/text.h"
#include "qvrscript/command_line/requests.h"  // before `Json`, which one of its enumerators is called too
#include "qvrscript/output/console.h"

namespace qvr::script_tool {

// Members stay in the order in which they were set.
using Json = nlohmann::ordered_json;

Json json_of(TextView text);

// One line on the output; the secrets are left out of every text.
void write_json(const Json& document, Console& console);

}  // namespace qvr::script_tool
