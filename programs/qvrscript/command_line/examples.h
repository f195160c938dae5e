// What stands below the options of each help: examples and exit codes.
#pragma once

#include <string>

namespace qvr::script_tool::examples {

extern const char* const kProgram;
extern const char* const kInstall;
extern const char* const kUpdate;
extern const char* const kRun;
extern const char* const kCfp;
extern const char* const kDoctor;

// With the rules by group.
std::string check();

}  // namespace qvr::script_tool::examples
