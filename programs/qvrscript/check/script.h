// One script file as the library's reader decodes it, with what the rules need.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "qvrscript/check/sql_regions.h"

namespace qvr::script_tool {

// A piece of the script that the runner sends to the database.
struct ScriptCommand {
  TextView text;
  std::size_t begin;  // in the script's text
};

class Script {
 public:
  // Bytes that cannot be decoded become one character each, so that the rules can still look at lines.
  Script(std::string bytes, Engine engine, Files& files);
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;

  const std::string& bytes() const { return bytes_; }
  bool readable() const { return readable_; }
  bool has_text() const;                            // false for UTF-16 without a byte-order mark and for binary files
  TextView stored_text() const { return stored_; }  // with the line ends of the file
  // With CR LF line ends, and the one that loading appends to each file.
  TextView text() const { return text_; }
  Engine engine() const { return engine_; }
  bool is_sql_server() const;  // also for an unknown engine
  const std::vector<Region>& regions() const { return regions_; }

  std::size_t lines() const { return line_starts_.size(); }
  std::size_t line_of(std::size_t position) const;  // from 1
  std::size_t line_start(std::size_t line) const { return line_starts_[line - 1]; }
  TextView line(std::size_t number) const;  // without its end

  const std::vector<ScriptCommand>& commands() const { return commands_; }
  ScriptCommand rest() const { return rest_; }  // behind the last separator and its blank lines

 private:
  void find_lines();
  void find_commands();

  std::string bytes_;
  bool readable_ = true;
  Text stored_, text_;
  Engine engine_;
  std::vector<Region> regions_;
  std::vector<std::size_t> line_starts_;
  std::vector<ScriptCommand> commands_;
  ScriptCommand rest_{};
};

}  // namespace qvr::script_tool
