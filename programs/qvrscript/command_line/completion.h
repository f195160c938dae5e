// What shells complete.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace qvr::script_tool {

// A script for bash that completes commands, options and their values, and files and folders elsewhere.
std::string bash_completion(const CLI::App& app);

}  // namespace qvr::script_tool
