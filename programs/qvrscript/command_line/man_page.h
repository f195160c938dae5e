// The manual page.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace qvr::script_tool {

// For man(1), in roff with its man macros.
std::string man_page(const CLI::App& app);

}  // namespace qvr::script_tool
