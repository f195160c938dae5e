// What the program writes, and its exit codes.
#pragma once

#include <functional>
#include <ostream>
#include <string_view>

#include "base/text.h"
#include "qvrscript/output/secrets.h"

namespace qvr::script_tool {

namespace exit_code {
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;         // something is wrong with what was looked at or run
inline constexpr int kRefused = 2;        // the command line
inline constexpr int kInterrupted = 130;  // as of a program that SIGINT ends
}  // namespace exit_code

struct Streams {
  std::ostream& out;
  std::ostream& err;
  bool err_is_terminal = false;
  bool out_colours = false;
  bool err_colours = false;
};

enum class Colour { None, Red, Yellow, Green };

// The text without characters that a terminal would obey: control characters and those that turn the direction of
// writing are shown as \x1b or \u202e; line ends too.
Text printable(TextView text);

// Every line is printable, holds no secret and is flushed when it is written.
class Console {
 public:
  explicit Console(const Streams& streams) : streams_(streams) {}
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  // Never shown from now on, nor logged.
  Secrets secrets;

  // A line of the result, on the output.
  void say(std::initializer_list<TextView> line, Colour colour = Colour::None);
  // A line of a failure or a warning, on the error output: "qvrscript: ...", and without this, as part of a block.
  void complain(std::initializer_list<TextView> line);
  void complain_more(std::initializer_list<TextView> line, Colour colour = Colour::None);
  // A document for machines on the output, as it stands; its writer leaves the secrets out.
  void document(std::string_view utf8);
  // What stands in the last line of the error output's terminal until the next call or line; nothing elsewhere.
  void status(std::string_view utf8);
  bool shows_status() const { return streams_.err_is_terminal; }

  // Whether something could not be written to the output.
  bool broken() const { return !streams_.out; }

  // What was done and stays, for the line that tells of an output that could not be written.
  Text done_all_the_same;

  // Hears every line and document that is shown.
  std::function<void(std::string_view line)> listener;

 private:
  void write(std::ostream& stream, bool colours, TextView prefix, std::initializer_list<TextView> line, Colour colour);
  void clear_status();

  Streams streams_;
  std::size_t status_width_ = 0;
};

}  // namespace qvr::script_tool
