// Output and exit codes.
#pragma once

#include <ostream>

#include "base/text.h"

namespace qvr::script_tool {

namespace exit_code {
inline constexpr int kDone = 0;     // nothing found, done
inline constexpr int kFailed = 1;   // findings, nothing to run, a run that failed
inline constexpr int kRefused = 2;  // a command line or a file that cannot be read
}  // namespace exit_code

struct Console {
  std::ostream& out;
  std::ostream& err;
  bool terminal;  // whether `out` is a terminal
};

void say(std::ostream& stream, std::initializer_list<TextView> line);

// "qvrscript: ..." on the error output.
void complain(const Console& console, std::initializer_list<TextView> line);

}  // namespace qvr::script_tool
