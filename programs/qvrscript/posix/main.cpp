#include <unistd.h>

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "qvrscript/program.h"
#include "qvrscript/run_ado.h"
#include "qvrscript/signals.h"
#include "qvrscript/system.h"

namespace {

bool has_colours(int descriptor) {
  const char* const no_colour = std::getenv("NO_COLOR");
  const char* const terminal = std::getenv("TERM");
  const bool refused = no_colour != nullptr && *no_colour != '\0';
  return isatty(descriptor) != 0 && !refused && terminal != nullptr && terminal != std::string_view("dumb");
}

}  // namespace

int main(int count, char** words) {
  using namespace qvr::script_tool;
  // unixODBC converts texts for drivers without wide functions by the C locale's character set.
  std::setlocale(LC_CTYPE, "C.UTF-8");
  hear_interruptions();
  // A reader that is gone is told as a failed write, after the run has ended as it should.
  std::signal(SIGPIPE, SIG_IGN);
  const Streams streams{std::cout, std::cerr, isatty(STDERR_FILENO) != 0, has_colours(STDOUT_FILENO),
                        has_colours(STDERR_FILENO)};
  const Surroundings surroundings{make_run_ado, open_database, environment_variable, ask_secret, standard_input_line};
  return run_program({words + 1, words + count}, streams, surroundings);
}
