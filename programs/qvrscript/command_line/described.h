// What the description of the command line holds, for the texts that are made from it.
#pragma once

#include <CLI/App.hpp>
#include <string>
#include <vector>

namespace qvr::script_tool {

// The commands right below this one, without those that no help shows.
std::vector<const CLI::App*> commands_of(const CLI::App& app);

// This one and everything below it, each before its own.
std::vector<const CLI::App*> all_commands(const CLI::App& app);

// The words that lead to a command, such as "cfp new"; none for the program itself.
std::string path_of(const CLI::App& command);

std::vector<const CLI::Option*> arguments_of(const CLI::App& command);

// Those of a group, or all; the help flag is everywhere and left out.
std::vector<const CLI::Option*> options_of(const CLI::App& command);
std::vector<const CLI::Option*> options_of(const CLI::App& command, const std::string& group);

// The words that an option takes; none where it takes no value or any.
std::vector<std::string> choices_of(const CLI::Option& option);

}  // namespace qvr::script_tool
