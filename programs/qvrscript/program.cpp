#include "qvrscript/program.h"

#include <new>
#include <optional>

#include "base/trace.h"
#include "base/utf8.h"
#include "qvrscript/cfp/cfp.h"
#include "qvrscript/check/check.h"
#include "qvrscript/command_line/command_line.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/doctor/doctor.h"
#include "qvrscript/output/json.h"

namespace qvr::script_tool {
namespace {

// Writes the trace to the console while it lives.
class TraceOutput {
 public:
  explicit TraceOutput(Console& console) : former_(set_trace_sink(write)) { console_ = &console; }
  ~TraceOutput() { set_trace_sink(former_); }
  TraceOutput(const TraceOutput&) = delete;
  TraceOutput& operator=(const TraceOutput&) = delete;

 private:
  static void write(TextView line) noexcept {
    try {
      console_->complain_more({u"trace: ", line});
    } catch (const std::bad_alloc&) {  // the line is dropped
    }
  }

  static inline Console* console_ = nullptr;
  const TraceSink former_;
};

// The command of each request.
struct Commands {
  const Request& request;
  Console& console;
  const Surroundings& surroundings;

  int operator()(const TextRequest& text) const {
    std::string_view shown = text.text;
    while (shown.ends_with('\n')) shown.remove_suffix(1);
    console.document(shown);
    return exit_code::kDone;
  }
  int operator()(const CheckRequest& check) const { return script_tool::check(check, request, console); }
  int operator()(const DoctorRequest&) const { return doctor(request, console); }
  int operator()(const CfpNewRequest& cfp) const { return cfp_new(cfp, request, surroundings, console); }
  int operator()(const CfpShowRequest& cfp) const { return cfp_show(cfp, request, surroundings, console); }
  int operator()(const CfpCheckRequest& cfp) const { return cfp_check(cfp, request, surroundings, console); }
  int operator()(const CfpRekeyRequest& cfp) const { return cfp_rekey(cfp, request, surroundings, console); }
  int operator()(const CfpTestRequest& cfp) const { return cfp_test(cfp, request, surroundings, console); }
  template <class Other>
  int operator()(const Other&) const {
    return exit_code::kFailed;
  }
};

void refuse(TextView message, bool json, Console& console) {
  console.complain({message, u"; qvrscript --help tells more"});
  if (json) {
    write_json({{"command", nullptr}, {"error", to_utf8(message)}, {"exitCode", exit_code::kRefused}}, console);
  }
}

int obey(const std::vector<std::string>& words, Console& console, const Surroundings& surroundings) {
  try {
    const Request request = CommandLine().parse(words);
    std::optional<TraceOutput> verbose;
    if (request.verbose) verbose.emplace(console);
    return std::visit(Commands{request, console, surroundings}, request.what);
  } catch (const UsageFailure& failure) {
    refuse(failure.message(), asks_for_json(words), console);
    return exit_code::kRefused;
  } catch (const std::exception&) {
    console.complain({u"unexpected failure"});
    return exit_code::kFailed;
  }
}

}  // namespace

int run_program(const std::vector<std::string>& words, const Streams& streams, const Surroundings& surroundings) {
  Console console(streams);
  const int code = obey(words, console, surroundings);
  if (!console.broken()) return code;
  console.complain({u"the output could not be written whole"});
  return code == exit_code::kDone ? exit_code::kFailed : code;
}

}  // namespace qvr::script_tool
