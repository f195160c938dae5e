// What would be run: the commands of a text that was put together, and where each comes from.
#pragma once

#include <optional>
#include <vector>

#include "base/engine.h"
#include "base/text.h"

namespace qvr::script_tool {

struct Place {
  Text file;             // as it is shown
  std::size_t line = 0;  // from 1
};

// "file:line"
Text shown(const Place& place);

struct ReadScript {
  Text file;  // as it is shown
  Text text;
};

struct AssembledCommand {
  TextView text;
  Place place;             // of its first character that is not white space
  std::size_t script = 0;  // the number of the script in which it begins
};

// Text behind the last GO line, which nobody runs.
struct Remainder {
  Place place;
  Text text;
};

class Assembly {
 public:
  // `text` is what the runner gets; it was made of the scripts' texts, each with a line end behind it, by replacing
  // what separates no commands. Where that is not so, places are lines of `text`.
  Assembly(Text text, Engine engine, std::vector<ReadScript> scripts);
  Assembly(const Assembly&) = delete;
  Assembly& operator=(const Assembly&) = delete;
  ~Assembly();  // wipes the text, which may hold passwords

  const Text& text() const { return text_; }
  Engine engine() const { return engine_; }
  const std::vector<ReadScript>& scripts() const { return scripts_; }
  const std::vector<AssembledCommand>& commands() const { return commands_; }
  const std::optional<Remainder>& not_run() const { return not_run_; }

 private:
  Text text_;
  Engine engine_;
  std::vector<ReadScript> scripts_;
  std::vector<AssembledCommand> commands_;
  std::optional<Remainder> not_run_;
};

// One script as it is, with the line end that loading puts behind each. Throws ToolFailure where it cannot be read.
Assembly assembled_file(TextView path, Engine engine);

// The beginning of a command for people: its first characters without white space in front, on one line.
Text beginning(TextView command);

}  // namespace qvr::script_tool
