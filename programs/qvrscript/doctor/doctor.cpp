#include "qvrscript/doctor/doctor.h"

#include <algorithm>

#include "qvrscript/doctor/doctor_subjects.h"
#include "qvrscript/output/json.h"

namespace qvr::script_tool {
namespace {

void diagnose_process(const Facts& facts, Diagnoses& found) {
  found.of("process");
  found.ok({u"qvrscript ", facts.own_version, u", ", width_text(facts.width), u", on ", facts.system, u" (",
            width_text(facts.system_width), u")"});
  if (facts.wine) {
    found.note({u"This is Wine: it looks for classes in the machine's registration only, and its ADO runs no commands"},
               {u"Register for the machine here, and look at databases on a Windows machine."});
  }
}

TextView level_word(Level level) {
  switch (level) {
    case Level::Ok: return u"ok";
    case Level::Note: return u"note";
    case Level::Error: break;
  }
  return u"error";
}

Text padded_to(TextView text, std::size_t width) {
  Text padded(text);
  if (padded.size() < width) padded.resize(width, u' ');
  return padded;
}

Text subject_text(const Diagnosis& each) { return Text(each.subject.begin(), each.subject.end()); }

void write_lines(const std::vector<Diagnosis>& found, std::size_t errors, bool quiet, Console& console) {
  constexpr std::size_t kLevelWidth = 7, kSubjectWidth = 15;
  for (const Diagnosis& each : found) {
    if (quiet && each.level != Level::Error) continue;
    const Colour colour = each.level == Level::Error ? Colour::Red : Colour::None;
    console.say({padded_to(level_word(each.level), kLevelWidth), padded_to(subject_text(each), kSubjectWidth),
                 each.message},
                colour);
    if (!each.advice.empty()) console.say({Text(kLevelWidth + kSubjectWidth, u' '), u"-> ", each.advice});
  }
  if (quiet) return;
  const Text count = errors == 0 ? Text(u"no") : decimal(static_cast<std::int64_t>(errors));
  console.say({count, errors == 1 ? u" error" : u" errors"});
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

int doctor(const Request& request, Console& console) {
  const std::vector<Diagnosis> found = diagnose(facts_of_this_machine());
  const auto errors = static_cast<std::size_t>(std::ranges::count(found, Level::Error, &Diagnosis::level));
  if (request.format == Format::Json) {
    write_document(found, errors, console);
  } else {
    write_lines(found, errors, request.quiet, console);
  }
  return errors == 0 ? exit_code::kDone : exit_code::kFailed;
}

}  // namespace qvr::script_tool
