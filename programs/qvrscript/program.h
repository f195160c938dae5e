// The program without main, for tests.
#pragma once

#include <string>
#include <vector>

#include "qvrscript/output/console.h"
#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

// Runs the program with these arguments in UTF-8; returns the exit code.
int run_program(const std::vector<std::string>& words, const Streams& streams, const Surroundings& surroundings);

}  // namespace qvr::script_tool
