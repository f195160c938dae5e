#include "qvrscript/program.h"

#include <new>
#include <optional>

#include "base/trace.h"
#include "base/utf8.h"
#include "qvrscript/check/check.h"
#include "qvrscript/command_line/help.h"
#include "qvrscript/doctor/doctor.h"
#include "qvrscript/run/list.h"
#include "session/ov.h"

namespace qvr::script_tool {
namespace {

// Writes the trace to this stream while it lives.
class TraceOutput {
 public:
  explicit TraceOutput(std::ostream& stream) : former_(set_trace_sink(write)) { stream_ = &stream; }
  ~TraceOutput() { set_trace_sink(former_); }
  TraceOutput(const TraceOutput&) = delete;
  TraceOutput& operator=(const TraceOutput&) = delete;

 private:
  static void write(TextView line) noexcept {
    try {
      *stream_ << "trace: " << to_utf8(line) << '\n';
    } catch (const std::bad_alloc&) {  // the line is dropped
    }
  }

  static inline std::ostream* stream_ = nullptr;
  const TraceSink former_;
};

int act(const Arguments& arguments, const Console& console, MakeAdo make_ado) {
  switch (arguments.action) {
    case Action::Help: console.out << help_text(arguments.topic); break;
    case Action::Version: say(console.out, {u"qvrscript ", Ov::CadenaVersion(own_version())}); break;
    case Action::Check: return check(arguments, console);
    case Action::List: return list(arguments, console);
    case Action::Run: return run(arguments, console, make_ado);
    case Action::Doctor: return doctor(arguments, console);
  }
  return exit_code::kDone;
}

}  // namespace

int run_program(std::span<const Text> words, const Console& console, MakeAdo make_ado) {
  try {
    const Arguments arguments = parse_arguments(words);
    std::optional<TraceOutput> verbose;
    if (arguments.verbose) verbose.emplace(console.err);
    const int code = act(arguments, console, make_ado);
    if (console.out.flush()) return code;
    complain(console, {u"the output cannot be written"});
  } catch (const UsageFailure& failure) {
    complain(console, {failure.message(), u"; qvrscript --help tells more"});
  } catch (const std::exception&) {
    complain(console, {u"unexpected failure"});
  }
  return exit_code::kRefused;
}

}  // namespace qvr::script_tool
