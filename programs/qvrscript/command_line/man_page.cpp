#include "qvrscript/command_line/man_page.h"

#include <sstream>
#include <string_view>

#include "base/utf8.h"
#include "qvrscript/command_line/described.h"
#include "qvrscript/output/console.h"
#include "session/ov.h"

namespace qvr::script_tool {
namespace {

// What a character is in roff: hyphens and quotes that can be copied, and no escape.
std::string roff(char character) {
  switch (character) {
    case '-': return "\\-";
    case '\\': return "\\e";
    case '\'': return "\\(aq";
    case '`': return "\\(ga";
    case '^': return "\\(ha";
    case '~': return "\\(ti";
    default: return {character};
  }
}

std::string roff(std::string_view text) {
  std::string escaped;
  for (const char character : text) escaped += roff(character);
  return escaped;
}

// A line of text, which roff would take for a request where it begins with a point.
std::string text_line(std::string_view text) { return (text.starts_with('.') ? "\\&" : "") + roff(text) + "\n"; }

std::string bold(std::string_view text) { return "\\fB" + roff(text) + "\\fR"; }
std::string italic(std::string_view text) { return "\\fI" + roff(text) + "\\fR"; }

std::string upper(std::string text) {
  for (char& each : text) {
    if (each >= 'a' && each <= 'z') each = static_cast<char>(each - 'a' + 'A');
  }
  return text;
}

std::string section(const std::string& name) { return ".SH \"" + roff(name) + "\"\n"; }
std::string subsection(const std::string& name) { return ".SS \"" + roff(name) + "\"\n"; }

std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// Lines that a description breaks run on.
std::string filled(const std::string& text) {
  std::string page;
  for (const std::string& line : lines_of(text)) page += text_line(line);
  return page;
}

bool is_indented(const std::string& line) { return line.starts_with(' '); }

// Ends like a title, not like a sentence or the words before an example.
bool is_title(const std::string& line) { return !line.ends_with('.') && !line.ends_with(':'); }

// What stands below the options: indented lines as they are, titles before them, and paragraphs.
std::string footer(const std::string& text) {
  std::string page;
  bool example = false, paragraph = false;
  const std::vector<std::string> lines = lines_of(text);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string& line = lines[i];
    const bool indented = is_indented(line) ||
                          (example && line.empty() && i + 1 < lines.size() && is_indented(lines[i + 1]));
    if (indented != example) page += indented ? ".PP\n.EX\n" : ".EE\n";
    example = indented;
    if (indented) {
      page += text_line(line);
    } else if (line.empty()) {
      paragraph = false;
    } else if (is_title(line) && i + 1 < lines.size() && is_indented(lines[i + 1])) {
      page += ".PP\n" + bold(line) + "\n";
    } else {
      if (!paragraph) page += ".PP\n";
      page += text_line(line);
      paragraph = true;
    }
  }
  return page + (example ? ".EE\n" : "");
}

std::string item(const std::string& head, const std::string& description) {
  return ".TP\n" + head + "\n" + filled(description);
}

std::string option_item(const CLI::Option& option) {
  std::string head;
  for (const std::string& name : option.get_snames()) head += (head.empty() ? "" : ", ") + bold("-" + name);
  for (const std::string& name : option.get_lnames()) head += (head.empty() ? "" : ", ") + bold("--" + name);
  const std::string& value = option.get_option_text();
  if (!value.empty()) head += " " + (choices_of(option).empty() ? italic(value) : bold(value));
  return item(head, option.get_description());
}

bool takes_several(const CLI::Option& argument) { return argument.get_expected_max() > 1; }

std::string synopsis(const CLI::App& command) {
  const std::string path = path_of(command);
  std::string line = bold("qvrscript" + (path.empty() ? "" : " " + path)) + " [" + italic("OPTION") + "]...";
  if (!commands_of(command).empty()) line += " " + italic("COMMAND");
  for (const CLI::Option* const argument : arguments_of(command)) {
    line += " " + italic(argument->get_name()) + (takes_several(*argument) ? "..." : "");
  }
  return line + "\n";
}

std::string list_of_commands(const CLI::App& app) {
  std::string page;
  for (const CLI::App* const each : commands_of(app)) page += item(bold(each->get_name()), each->get_description());
  return page;
}

std::string command_section(const CLI::App& command) {
  std::string page = section(upper(path_of(command))) + synopsis(command) + ".PP\n" + filled(command.get_description());
  page += list_of_commands(command);
  for (const CLI::Option* const argument : arguments_of(command)) {
    page += item(italic(argument->get_name()), argument->get_description());
  }
  for (const std::string& group : command.get_groups()) {
    const std::vector<const CLI::Option*> options = options_of(command, group);
    if (options.empty()) continue;
    page += subsection(group);
    for (const CLI::Option* const option : options) page += option_item(*option);
  }
  return page + footer(command.get_footer());
}

std::string options_section(const CLI::App& app) {
  std::string page = section("OPTIONS") + option_item(*app.get_help_ptr());
  for (const CLI::Option* const option : options_of(app)) page += option_item(*option);
  return page;
}

std::string exit_status() {
  return section("EXIT STATUS") + item(bold(std::to_string(exit_code::kDone)), "Everything was done.") +
         item(bold(std::to_string(exit_code::kFailed)),
              "Something is wrong with what was looked at or run, a file cannot be read or a connection not opened.") +
         item(bold(std::to_string(exit_code::kRefused)), "The command line is refused; nothing was done.") +
         item(bold(std::to_string(exit_code::kInterrupted)), "The program was interrupted.");
}

std::string environment_section() {
  return section("ENVIRONMENT") + item(bold("NO_COLOR"), "Where it is set and not empty, nothing is coloured.") +
         item(italic("VAR"),
              "Variables that options name hold what others must not see: connection strings, identifications of\n"
              "connection files and passwords.");
}

}  // namespace

std::string man_page(const CLI::App& app) {
  const std::string version = to_utf8(Ov::CadenaVersion(own_version()));
  // Without a date: equal sources make equal bytes.
  std::string page = ".TH QVRSCRIPT 1 \"\" \"qvrscript " + roff(version) + "\"\n.nr HY 0\n";
  page += section("NAME") + "qvrscript \\- " + text_line(app.get_description());
  page += section("SYNOPSIS") + synopsis(app);
  page += section("DESCRIPTION") + list_of_commands(app) + footer(app.get_footer()) + options_section(app);
  for (const CLI::App* const command : all_commands(app)) {
    if (command != &app) page += command_section(*command);
  }
  return page + exit_status() + environment_section();
}

}  // namespace qvr::script_tool
