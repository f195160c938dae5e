// What the commands share.
#pragma once

#include "connection/qvrcfp.h"
#include "qvrscript/command_line/requests.h"
#include "qvrscript/connection/cfp_reading.h"
#include "qvrscript/output/console.h"
#include "qvrscript/output/json.h"

namespace qvr::script_tool {

// Throws UsageFailure for a folder or a name that would lead elsewhere.
void require_names(const CfpChoice& cfp);

// Writes the parameters for this identification, whole or not at all: then throws ToolFailure.
void write_connection_file(const CfpChoice& cfp, TextView identification, const ConnectionParameters& parameters);

// Complains of a file that is not fine, in a document as well where one is asked for. Gives the exit code.
int refuse(const CfpReading& reading, const CfpChoice& cfp, const Request& request, Console& console);

// "SQL Server"; for a number that is no engine's, the number.
Text title_of(Engine engine);

// The word of the command line; null for a number that is no engine's.
Json json_engine(Engine engine);
// A document that begins with the command and the file.
Json begun_document(const Request& request, const CfpChoice& cfp);
Json json_list(const std::vector<Text>& texts);

}  // namespace qvr::script_tool
