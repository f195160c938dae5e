// What is told of a run: while it goes on, and at its end.
#pragma once

#include "qvrscript/command_line/requests.h"
#include "qvrscript/output/console.h"
#include "qvrscript/run/outcome.h"

namespace qvr::script_tool {

struct RunReport {
  const Request& request;
  const RunOptions& options;
  const Assembly& assembly;
};

// 0 where every command ran and stays, or was rehearsed; 130 for an interrupted run.
int exit_code_of(const Outcome& outcome, const Assembly& assembly);

// For people: while it runs, and the last lines.
void tell_begun(const RunReport& report, std::size_t command, Console& console);
void tell_ended(const RunReport& report, std::size_t command, double milliseconds, Console& console);
void tell_failure(const RunReport& report, const RunFailure& failure, Console& console);
void tell_outcome(const RunReport& report, const Outcome& outcome, Console& console);

// For machines, one document at the end.
void write_run_json(const RunReport& report, const Outcome& outcome, Console& console);
void write_run_junit(const RunReport& report, const Outcome& outcome, Console& console);

// In place of a run that could not begin.
void write_refusal_junit(const Request& request, TextView message, Console& console);

// Whether text behind the last GO line is left; it is told then.
void complain_of_remainder(const Assembly& assembly, Console& console);

}  // namespace qvr::script_tool
