// The command line. Its description is what help, manual page and completion are made from.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "qvrscript/command_line/requests.h"

namespace CLI {
class App;
}

namespace qvr::script_tool {

class CommandLine {
 public:
  CommandLine();
  ~CommandLine();
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;

  // The words in UTF-8, without the program's name. Throws UsageFailure. Once for each object.
  Request parse(std::vector<std::string> words);

  const CLI::App& app() const;

 private:
  struct Description;
  std::unique_ptr<Description> description_;
};

// Whether these words ask for JSON, also where they are no valid command line.
bool asks_for_json(const std::vector<std::string>& words);

}  // namespace qvr::script_tool
