#include "qvrscript/command_line/completion.h"

#include <string_view>

#include "qvrscript/command_line/described.h"

namespace qvr::script_tool {
namespace {

constexpr const char* kHead =
    R"(# What bash completes of qvrscript: source this, or put it into a folder of completions under the name qvrscript.
_qvrscript() {
  local word=${COMP_WORDS[COMP_CWORD]} before=$((COMP_CWORD - 1)) command='' words='' i
  # An equals sign is a word of its own.
  [ "$word" = = ] && word=
  [ "${COMP_WORDS[before]}" = = ] && ((before -= 1))
  for ((i = 1; i <= before; ++i)); do
    case ${command:+$command }${COMP_WORDS[i]} in
)";

constexpr const char* kOptionValues = R"(    esac
  done
  COMPREPLY=()
  case $command:${COMP_WORDS[before]} in
)";

constexpr const char* kWords = R"(    *)
      case $command:$word in
)";

constexpr const char* kTail = R"(        *)
          _qvrscript_list -f
          return ;;
      esac ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}

# The names of files (-f) or folders (-d) that begin with the word.
_qvrscript_list() {
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen "$1" -- "$word")
}
complete -F _qvrscript qvrscript
)";

std::string spaced(const std::vector<std::string>& words) { return CLI::detail::join(words, " "); }

std::vector<std::string> names_of(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  return names;
}

// What is done for the value of an option.
std::string value_action(const CLI::Option& option) {
  const std::vector<std::string> choices = choices_of(option);
  if (!choices.empty()) return "words='" + spaced(choices) + "' ;;";
  const std::string& value = option.get_option_text();
  if (value == "VAR") return "mapfile -t COMPREPLY < <(compgen -e -- \"$word\"); return ;;";
  if (value == "FILE") return "_qvrscript_list -f; return ;;";
  if (value.starts_with("FOLDER")) return "_qvrscript_list -d; return ;;";
  return "return ;;";
}

std::string value_cases(const CLI::App& command) {
  std::string script;
  for (const CLI::Option* const option : options_of(command)) {
    if (option->get_option_text().empty()) continue;
    script += "    '" + path_of(command) + ":" + names_of(*option).front() + "') " + value_action(*option) + "\n";
  }
  return script;
}

std::string word_cases(const CLI::App& command) {
  std::vector<std::string> options = names_of(*command.get_help_ptr()), below;
  for (const CLI::Option* const option : options_of(command)) {
    const std::vector<std::string> names = names_of(*option);
    options.insert(options.end(), names.begin(), names.end());
  }
  for (const CLI::App* const each : commands_of(command)) below.push_back(each->get_name());
  const std::string path = path_of(command);
  std::string script = "        '" + path + ":-'*) words='" + spaced(options) + "' ;;\n";
  if (!below.empty()) script += "        '" + path + ":'*) words='" + spaced(below) + "' ;;\n";
  return script;
}

}  // namespace

std::string bash_completion(const CLI::App& app) {
  const std::vector<const CLI::App*> commands = all_commands(app);
  std::string script = kHead;
  for (const CLI::App* const each : commands) {
    if (each != &app) script += "      '" + path_of(*each) + "') command='" + path_of(*each) + "' ;;\n";
  }
  script += kOptionValues;
  for (const CLI::App* const each : commands) script += value_cases(*each);
  script += kWords;
  for (const CLI::App* const each : commands) script += word_cases(*each);
  return script + kTail;
}

}  // namespace qvr::script_tool
