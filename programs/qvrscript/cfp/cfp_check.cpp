#include "qvrscript/cfp/cfp.h"
#include "qvrscript/cfp/cfp_parts.h"
#include "qvrscript/connection/asked_secret.h"

namespace qvr::script_tool {
namespace {

constexpr TextView kMoreLines = u"there is more behind line 10, which the library does not read";

void tell_text(const CfpReading& reading, const CfpCheckRequest& asked, bool quiet, Console& console) {
  for (const Text& line : explanation(reading, asked.cfp)) console.say({line}, Colour::Red);
  if (reading.state == CfpState::Fine && !quiet) {
    console.say({shown_path(asked.cfp), u": fine (", title_of(reading.parameters.MotorBD), u")"}, Colour::Green);
  }
  if (reading.more_lines && !quiet) console.say({shown_path(asked.cfp), u": note: ", kMoreLines});
}

Json damaged_lines(const CfpReading& reading) {
  Json lines = Json::array();
  for (const std::size_t number : reading.damaged) {
    lines.push_back({{"line", number}, {"field", name_of_cfp_line(number)}});
  }
  return lines;
}

void tell_json(const CfpReading& reading, const CfpCheckRequest& asked, const Request& request, Console& console) {
  const bool fine = reading.state == CfpState::Fine;
  Json document = begun_document(request, asked.cfp);
  document["fine"] = fine;
  document["state"] = name_of(reading.state);
  document["engine"] = fine ? json_engine(reading.parameters.MotorBD) : Json();
  document["lines"] = reading.lines;
  document["moreLines"] = reading.more_lines;
  document["damaged"] = damaged_lines(reading);
  document["messages"] = json_list(explanation(reading, asked.cfp));
  write_json(document, console);
}

// There is no file to tell of: the failure belongs on the error output.
bool is_missing(CfpState state) {
  return state == CfpState::NoFolder || state == CfpState::NoFile || state == CfpState::Unreadable;
}

}  // namespace

int cfp_check(const CfpCheckRequest& asked, const Request& request, const Surroundings& surroundings,
              Console& console) {
  require_names(asked.cfp);
  const SecretText id = asked_identification(asked.cfp.id_variable, surroundings, console);
  const CfpReading reading = read_connection_file(asked.cfp, id);
  if (request.format == Format::Json) {
    tell_json(reading, asked, request, console);
  } else if (is_missing(reading.state)) {
    return refuse(reading, asked.cfp, request, console);
  } else {
    tell_text(reading, asked, request.quiet, console);
  }
  return reading.state == CfpState::Fine ? exit_code::kDone : exit_code::kFailed;
}

}  // namespace qvr::script_tool
