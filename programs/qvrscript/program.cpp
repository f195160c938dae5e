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
#include "qvrscript/run/commands.h"
#include "qvrscript/run/report.h"
#include "qvrscript/tool_failure.h"

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
  int operator()(const DoctorRequest& asked) const { return doctor(asked, request, surroundings, console); }
  int operator()(const RunRequest& run) const { return script_tool::run(run, request, surroundings, console); }
  int operator()(const LoadRequest& load) const { return install_or_update(load, request, surroundings, console); }
  int operator()(const CfpNewRequest& cfp) const { return cfp_new(cfp, request, surroundings, console); }
  int operator()(const CfpShowRequest& cfp) const { return cfp_show(cfp, request, surroundings, console); }
  int operator()(const CfpCheckRequest& cfp) const { return cfp_check(cfp, request, surroundings, console); }
  int operator()(const CfpRekeyRequest& cfp) const { return cfp_rekey(cfp, request, surroundings, console); }
  int operator()(const CfpTestRequest& cfp) const { return cfp_test(cfp, request, surroundings, console); }
};

// A document for those who asked for one, beside the line.
int refuse_in_document(const Request& request, TextView message, int code, Console& console) {
  if (request.format == Format::Json) {
    write_json({{"command", request.command.empty() ? Json() : json_of(request.command)},
                {"error", json_of(message)},
                {"exitCode", code}},
               console);
  }
  if (request.format == Format::JUnit) write_refusal_junit(request, message, console);
  return code;
}

int refuse(const Request& request, TextView message, int code, Console& console) {
  console.complain({message, code == exit_code::kRefused ? u"; qvrscript --help tells more" : u""});
  return refuse_in_document(request, message, code, console);
}

int obey(const Request& request, Console& console, const Surroundings& surroundings) {
  try {
    std::optional<TraceOutput> verbose;
    if (request.verbose) verbose.emplace(console);
    return std::visit(Commands{request, console, surroundings}, request.what);
  } catch (const UsageFailure& failure) {
    return refuse(request, failure.message(), exit_code::kRefused, console);
  } catch (const ToolFailure& failure) {
    if (failure.told()) return refuse_in_document(request, failure.message(), exit_code::kFailed, console);
    return refuse(request, failure.message(), exit_code::kFailed, console);
  } catch (const std::bad_alloc&) {
    return refuse(request, u"out of memory", exit_code::kFailed, console);
  } catch (const std::exception&) {
    return refuse(request, u"unexpected failure", exit_code::kFailed, console);
  }
}

int parse_and_obey(const std::vector<std::string>& words, Console& console, const Surroundings& surroundings) {
  Request request;
  if (asks_for_json(words)) request.format = Format::Json;
  try {
    request = CommandLine().parse(words);
  } catch (const UsageFailure& failure) {
    return refuse(request, failure.message(), exit_code::kRefused, console);
  }
  return obey(request, console, surroundings);
}

}  // namespace

int run_program(const std::vector<std::string>& words, const Streams& streams, const Surroundings& surroundings) {
  Console console(streams);
  const int code = parse_and_obey(words, console, surroundings);
  if (!console.broken()) return code;
  console.complain({u"the output could not be written whole", console.done_all_the_same});
  return code == exit_code::kDone ? exit_code::kFailed : code;
}

}  // namespace qvr::script_tool
