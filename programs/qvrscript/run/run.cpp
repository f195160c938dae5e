#include "qvrscript/run/run.h"

#include "base/failure.h"
#include "qvrscript/output/json.h"
#include "qvrscript/run/run_console.h"
#include "script/command_splitter.h"
#include "services/builtin_error_report.h"

namespace qvr::script_tool {
namespace {

// The thread's environment during a run: the system's platform with the console instead of message boxes.
class RunThread {
 public:
  RunThread(MessageBoxes& boxes, MakeAdo make_ado)
      : platform_(with_boxes(thread_state().platform(), boxes)),
        former_(exchange_thread_state(std::make_unique<ThreadState>(Environment{
            platform_, environment().make_text_protection, make_report, make_ado, environment().make_script_reader}))) {
  }
  ~RunThread() { exchange_thread_state(std::move(former_)); }
  RunThread(const RunThread&) = delete;
  RunThread& operator=(const RunThread&) = delete;

 private:
  static Platform with_boxes(const Platform& around, MessageBoxes& boxes) {
    return {around.files, around.locale, around.cryptography, boxes, around.system};
  }
  static std::unique_ptr<services::ErrorReport> make_report(const Platform& platform) {
    return std::make_unique<services::BuiltinErrorReport>(platform.message_boxes);
  }

  Platform platform_;
  std::unique_ptr<ThreadState> former_;
};

// The text as loading would prepare it; nothing when the file cannot be read.
std::optional<Text> commands_in(TextView file) {
  const auto text = or_default({}, std::optional<Text>(),
                               [&] { return thread_state().script_reader().Leer(u"qvrscript", file); });
  return text ? std::optional(join({*text, kLineBreak})) : std::nullopt;
}

struct Result {
  bool success;
  std::size_t executed, total;
};

void write_json(const Arguments& arguments, const Result& result, const std::vector<Text>& failures,
                const Console& console) {
  std::vector<Text> texts;
  for (const Text& failure : failures) texts.push_back(json_text(failure));
  say(console.out,
      {json_object({json_member(u"command", json_text(u"run")), json_member(u"file", json_text(arguments.operands[0])),
                    json_member(u"success", json_truth(result.success)),
                    json_member(u"executed", json_number(result.executed)),
                    json_member(u"total", json_number(result.total)),
                    json_member(u"transaction", json_truth(arguments.use_transaction)),
                    json_member(u"failures", json_array(texts))})});
}

void write_lines(const Arguments& arguments, const Result& result, const Console& console) {
  const Text counts = join({json_number(result.executed), u" of ", json_number(result.total), u" commands"});
  if (result.success) {
    say(console.out, {u"done: ", counts});
  } else {
    complain(console,
             {u"failed after ", counts, arguments.use_transaction ? u"; all taken back" : u"; what ran stays"});
  }
}

}  // namespace

int run(const Arguments& arguments, const Console& console, MakeAdo make_ado) {
  ConsoleBoxes boxes(console, arguments.go_on);
  const RunThread thread(boxes, make_ado);
  const auto commands = commands_in(arguments.operands[0]);
  if (!commands) {
    complain(console, {arguments.operands[0], u" cannot be read"});
    return exit_code::kRefused;
  }
  if (count_separators(*commands) == 0) complain(console, {arguments.operands[0], u" has no GO line: nothing is run"});
  ConsoleProgress progress(console, arguments.json);
  Text id = arguments.use_transaction ? u"qvrscript" : u"EvitarTransaccion qvrscript";
  Text counts(ConsoleProgress::kCounts);
  const bool success = QVRScr(progress).EjecutarComandos(id, *arguments.engine, *commands, arguments.connection,
                                                         counts);
  const Result result{success, progress.begun - boxes.questions, static_cast<std::size_t>(count_separators(*commands))};
  if (arguments.json) {
    write_json(arguments, result, boxes.failures, console);
  } else {
    write_lines(arguments, result, console);
  }
  return success ? exit_code::kDone : exit_code::kFailed;
}

}  // namespace qvr::script_tool
