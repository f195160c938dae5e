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

void write_lines(const std::vector<Diagnosis>& found, std::size_t errors, const Console& console) {
  for (const Diagnosis& each : found) {
    say(console.out, {padded_to(level_word(each.level), 7), padded_to(subject_text(each), 15), each.message});
    if (!each.advice.empty()) say(console.out, {Text(22, u' '), u"-> ", each.advice});
  }
  const Text count = json_number(errors);
  say(console.out, {errors == 0 ? TextView(u"no") : TextView(count), errors == 1 ? u" error" : u" errors"});
}

void write_json(const std::vector<Diagnosis>& found, std::size_t errors, const Console& console) {
  std::vector<Text> findings;
  for (const Diagnosis& each : found) {
    findings.push_back(json_object({json_member(u"level", json_text(level_word(each.level))),
                                    json_member(u"subject", json_text(subject_text(each))),
                                    json_member(u"message", json_text(each.message)),
                                    json_member(u"advice", json_text(each.advice))}));
  }
  say(console.out,
      {json_object({json_member(u"command", json_text(u"doctor")), json_member(u"errors", json_number(errors)),
                    json_member(u"findings", json_array(findings))})});
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

int doctor(const Arguments& arguments, const Console& console) {
  const std::vector<Diagnosis> found = diagnose(facts_of_this_machine());
  const auto errors = static_cast<std::size_t>(std::ranges::count(found, Level::Error, &Diagnosis::level));
  (arguments.json ? write_json : write_lines)(found, errors, console);
  return errors == 0 ? exit_code::kDone : exit_code::kFailed;
}

}  // namespace qvr::script_tool
