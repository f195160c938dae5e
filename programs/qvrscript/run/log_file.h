// The log of a run: every line that the console shows, with the time.
#pragma once

#include <fstream>

#include "qvrscript/output/console.h"

namespace qvr::script_tool {

class LogFile {
 public:
  // Begins a new file, which is readable from then on. Throws ToolFailure where it cannot be written.
  LogFile(TextView path, Console& console);
  ~LogFile();
  LogFile(const LogFile&) = delete;
  LogFile& operator=(const LogFile&) = delete;

  // Whether something is missing in it, on a full disk say.
  bool broken() const { return !file_; }

 private:
  Console& console_;
  std::ofstream file_;
};

}  // namespace qvr::script_tool
