#include "qvrscript/command_line/described.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>

namespace qvr::script_tool {

std::vector<const CLI::App*> commands_of(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App* each) { return !each->get_group().empty(); });
}

std::vector<const CLI::App*> all_commands(const CLI::App& app) {
  std::vector<const CLI::App*> all = {&app};
  for (const CLI::App* const command : commands_of(app)) {
    const std::vector<const CLI::App*> below = all_commands(*command);
    all.insert(all.end(), below.begin(), below.end());
  }
  return all;
}

std::string path_of(const CLI::App& command) {
  const CLI::App* const parent = command.get_parent();
  if (parent == nullptr) return {};
  const std::string above = path_of(*parent);
  return above.empty() ? command.get_name() : above + " " + command.get_name();
}

std::vector<const CLI::Option*> arguments_of(const CLI::App& command) {
  return command.get_options([](const CLI::Option* each) { return each->get_positional(); });
}

std::vector<const CLI::Option*> options_of(const CLI::App& command) {
  const CLI::Option* const help = command.get_help_ptr();
  return command.get_options([help](const CLI::Option* each) { return !each->get_positional() && each != help; });
}

std::vector<const CLI::Option*> options_of(const CLI::App& command, const std::string& group) {
  std::vector<const CLI::Option*> options = options_of(command);
  std::erase_if(options, [&](const CLI::Option* each) { return each->get_group() != group; });
  return options;
}

std::vector<std::string> choices_of(const CLI::Option& option) {
  const std::string& text = option.get_option_text();
  // What stands for something is in capitals.
  const bool choice = text.find('|') != std::string::npos &&
                      std::ranges::all_of(text, [](char each) { return each == '|' || (each >= 'a' && each <= 'z'); });
  return choice ? CLI::detail::split(text, '|') : std::vector<std::string>();
}

}  // namespace qvr::script_tool
