// A run as a JSON document; docs/manual/schemas/qvrscript-run.schema.json describes it.
#include "base/utf8.h"
#include "qvrscript/output/json.h"
#include "qvrscript/run/report.h"

namespace qvr::script_tool {
namespace {

std::string_view word_of(Ending ending) {
  switch (ending) {
    case Ending::Nothing: return "nothing";
    case Ending::Committed: return "committed";
    case Ending::PerhapsCommitted: return "perhapsCommitted";
    case Ending::Rehearsed: return "rehearsed";
    case Ending::Kept: return "kept";
    case Ending::TakenBack: return "takenBack";
    case Ending::PartlyKept: return "partlyKept";
    case Ending::PerhapsKept: return "perhapsKept";
    case Ending::RollbackFailed: break;
  }
  return "rollbackFailed";
}

Json place_json(const Place& place, TextView text) {
  return {{"file", json_of(place.file)}, {"line", place.line}, {"text", json_of(text)}};
}

Json error_json(const services::AdoError& error) {
  return {{"number", error.number},
          {"nativeError", error.native_error},
          {"sqlState", json_of(error.sql_state)},
          {"source", json_of(error.source)},
          {"description", json_of(error.description)}};
}

// Nothing of a command is known of a failure outside of them.
Json failure_json(const RunFailure& failure, const Assembly& assembly) {
  const std::size_t all = assembly.commands().size();
  const bool of_command = failure.command > 0 && failure.command <= all;
  const AssembledCommand* const command = of_command ? &assembly.commands()[failure.command - 1] : nullptr;
  const services::AdoError* const first = failure.errors.empty() ? nullptr : &failure.errors.front();
  Json errors = Json::array();
  for (const services::AdoError& error : failure.errors) errors.push_back(error_json(error));
  return {{"command", of_command ? Json(failure.command) : Json()},
          {"of", all},
          {"file", of_command ? json_of(command->place.file) : Json()},
          {"line", of_command ? Json(command->place.line) : Json()},
          {"text", of_command ? json_of(beginning(command->text)) : Json()},
          {"number", failure.failure.number},
          {"nativeError", first != nullptr ? Json(first->native_error) : Json()},
          {"sqlState", first != nullptr ? json_of(first->sql_state) : Json()},
          {"source", json_of(failure.failure.source)},
          {"description", json_of(failure.failure.description)},
          {"errors", errors}};
}

Json times_of(const Outcome& outcome, const Assembly& assembly) {
  Json times = Json::array();
  for (std::size_t i = 0; i < outcome.milliseconds.size() && i < assembly.commands().size(); ++i) {
    const Place& place = assembly.commands()[i].place;
    times.push_back({{"command", i + 1},
                     {"file", json_of(place.file)},
                     {"line", place.line},
                     {"milliseconds", outcome.milliseconds[i]}});
  }
  return times;
}

}  // namespace

void write_run_json(const RunReport& report, const Outcome& outcome, Console& console) {
  Json files = Json::array(), failures = Json::array(), not_run = Json::array();
  for (const ReadScript& script : report.assembly.scripts()) files.push_back(json_of(script.file));
  for (const RunFailure& failure : outcome.failures) failures.push_back(failure_json(failure, report.assembly));
  if (const auto& rest = report.assembly.not_run()) not_run.push_back(place_json(rest->place, beginning(rest->text)));
  Json document = {{"command", json_of(report.request.command)},
                   {"files", files},
                   {"success", exit_code_of(outcome, report.assembly) == exit_code::kDone},
                   {"executed", outcome.executed},
                   {"total", report.assembly.commands().size()},
                   {"transaction", report.options.use_transaction},
                   {"ending", word_of(outcome.ending)},
                   {"interrupted", outcome.interrupted},
                   {"failures", failures},
                   {"notRun", not_run}};
  if (outcome.kept_up_to) {
    document["keptUpTo"] = {{"command", outcome.kept_up_to->command},
                            {"statement", json_of(outcome.kept_up_to->statement)}};
  }
  if (report.options.timing) {
    document["milliseconds"] = outcome.whole_milliseconds;
    document["times"] = times_of(outcome, report.assembly);
  }
  write_json(document, console);
}

}  // namespace qvr::script_tool
