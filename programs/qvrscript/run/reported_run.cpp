#include "qvrscript/run/reported_run.h"

#include <optional>

#include "base/failure.h"
#include "qvrscript/connection/connection.h"
#include "qvrscript/run/log_file.h"
#include "qvrscript/run/runner.h"

namespace qvr::script_tool {
namespace {

class Teller final : public RunListener {
 public:
  Teller(const RunReport& report, Console& console) : report_(report), console_(console) {}

  void begun(std::size_t command) override { tell_begun(report_, command, console_); }
  void ended(std::size_t command, double milliseconds) override {
    tell_ended(report_, command, milliseconds, console_);
  }
  void failed(const RunFailure& failure) override { tell_failure(report_, failure, console_); }
  void given_up(const Outcome& outcome) override { finish(outcome); }

  void finish(const Outcome& outcome) {
    if (report_.request.format == Format::Json) write_run_json(report_, outcome, console_);
    if (report_.request.format == Format::JUnit) write_run_junit(report_, outcome, console_);
    tell_outcome(report_, outcome, console_);
  }

 private:
  const RunReport& report_;
  Console& console_;
};

}  // namespace

int run_and_report(const RunReport& report, TextView connection_string, const Surroundings& surroundings,
                   Console& console) {
  std::optional<LogFile> log;
  if (report.options.log) log.emplace(*report.options.log, console);
  complain_of_remainder(report.assembly, console);
  Teller teller(report, console);
  if (report.assembly.commands().empty() || (report.assembly.not_run() && !report.options.go_on)) {
    teller.finish({});
    return exit_code::kFailed;
  }
  if (report.options.rehearse) {
    require_rehearsable(report.assembly, [&](const Committing&) {
      const auto give_up = [&](TextView why) {
        Outcome outcome;
        outcome.failures.push_back({0, {failure_number::kInvalidArgument, Text(why), Text(kOwnSource)}, {}});
        teller.failed(outcome.failures.back());
        teller.finish(outcome);
      };
      return or_default({}, Ddl::Unknown, [&] {
        return opened_database(connection_string, report.options.connection->connect_timeout, surroundings, give_up)
            ->facts()
            .ddl;
      });
    });
  }
  const Outcome outcome = run_assembly(report.assembly, connection_string, report.options, surroundings, teller);
  teller.finish(outcome);
  const int code = exit_code_of(outcome, report.assembly);
  if (!log || !log->broken()) return code;
  console.complain({*report.options.log, u" could not be written whole"});
  return code == exit_code::kDone ? exit_code::kFailed : code;
}

}  // namespace qvr::script_tool
