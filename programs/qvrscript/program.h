// The program behind main.
#pragma once

#include <span>

#include "qvrscript/run.h"

namespace qvr::script_tool {

// Does what the words behind the program's name ask for; the exit code.
int run_program(std::span<const Text> words, const Console& console, MakeAdo make_ado);

}  // namespace qvr::script_tool
