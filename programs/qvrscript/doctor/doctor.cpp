#include "qvrscript/doctor/doctor.h"

#include <algorithm>

#include "qvrscript/connection/connection.h"
#include "qvrscript/doctor/doctor_subjects.h"

#include "qvrscript/doctor/report.h"
#include "qvrscript/doctor/try/trial.h"
#include "qvrscript/output/json.h"

namespace qvr::script_tool {
namespace {

constexpr std::int32_t kConnectTimeout = 15;  // in seconds, where no connection is given

void diagnose_process(const Facts& facts, Diagnoses& found) {
  found.of("process");
  found.ok({u"qvrscript ", facts.own_version, u", ", width_text(facts.width), u", on ", facts.system, u" (",
            width_text(facts.system_width), u")"});
  if (facts.wine) {
    found.note({u"This is Wine: it looks for classes in the machine's registration only, and its ADO runs no commands"},
               {u"Register for the machine here, and look at databases on a Windows machine."});
  }
}

void write_lines(const std::vector<Diagnosis>& found, std::size_t errors, bool quiet, Console& console) {
  for (const Diagnosis& each : found) {
    if (quiet && each.level != Level::Error) continue;
    const std::vector<Text> lines = lines_of(each);
    console.say({lines.front()}, each.level == Level::Error ? Colour::Red : Colour::None);
    for (std::size_t i = 1; i < lines.size(); ++i) console.say({lines[i]});
  }
  if (!quiet) console.say({count_of_errors(errors)});
}

void write_document(const std::vector<Diagnosis>& found, std::size_t errors, Console& console) {
  Json findings = Json::array();
  for (const Diagnosis& each : found) {
    findings.push_back({{"level", json_of(level_word(each.level))},
                        {"subject", each.subject},
                        {"message", json_of(each.message)},
                        {"advice", json_of(each.advice)}});
  }
  write_json({{"command", "doctor"}, {"errors", errors}, {"findings", findings}}, console);
}

}  // namespace

Text width_text(unsigned width) { return join({decimal(width), u"-bit"}); }

std::vector<Diagnosis> diagnose(const Facts& facts) {
  std::vector<Diagnosis> diagnoses;
  Diagnoses found(diagnoses);
  diagnose_process(facts, found);
  if (facts.windows) {
    diagnose_library(facts, found);
    diagnose_registration(facts, found);
    diagnose_type_library(facts, found);
    diagnose_ado(facts, found);
    diagnose_providers(facts, found);
    diagnose_components(facts, found);
  } else {
    found.of("library");
    found.note({u"The library, its registration and ADO exist on Windows only"},
               {u"Run qvrscript.exe doctor on the machine that the application runs on."});
  }
  diagnose_language(facts, found);
  if (facts.windows) diagnose_desktop(facts, found);
  return diagnoses;
}

namespace {

// Nothing after a failure of the connection file, which then stands on the error output.
std::optional<GivenDatabase> given_database(const DoctorRequest& asked, const Surroundings& surroundings,
                                            Console& console) {
  const std::optional<Connection> connection = connection_of(*asked.connection, surroundings, console);
  if (!connection) return std::nullopt;
  Engine engine = asked.engine;
  if (engine == Engine::None && connection->parameters) engine = connection->parameters->MotorBD;
  return GivenDatabase{Text(TextView(connection->string)), engine == Engine::None ? Engine::Jet : engine};
}

}  // namespace

int doctor(const DoctorRequest& asked, const Request& request, const Surroundings& surroundings, Console& console) {
  std::optional<GivenDatabase> given;
  if (asked.connection && asked.connection->names_source()) {
    given = given_database(asked, surroundings, console);
    if (!given) return exit_code::kFailed;
  }
  std::vector<Diagnosis> found = diagnose(facts_of_this_machine());
  TrialResult tried;
  if (asked.tries) tried = try_library(given, asked.connection ? asked.connection->connect_timeout : kConnectTimeout);
  if (asked.report) write_report(*asked.report, found, tried, console);
  for (const TriedStep& each : tried.steps) found.push_back(each.diagnosis);
  const auto errors = static_cast<std::size_t>(std::ranges::count(found, Level::Error, &Diagnosis::level));
  if (request.format == Format::Json) {
    write_document(found, errors, console);
  } else {
    write_lines(found, errors, request.quiet, console);
  }
  if (tried.interrupted) return exit_code::kInterrupted;
  return errors == 0 ? exit_code::kDone : exit_code::kFailed;
}

}  // namespace qvr::script_tool
