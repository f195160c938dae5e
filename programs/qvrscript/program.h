// The program without main, for tests.
#pragma once

#include <span>

#include "qvrscript/run/run.h"

namespace qvr::script_tool {

// Runs the program with these arguments; returns the exit code.
int run_program(std::span<const Text> words, const Console& console, MakeAdo make_ado);

}  // namespace qvr::script_tool
