#include "qvrscript/cfp/cfp_parts.h"

#include "base/utf8.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/engines.h"
#include "qvrscript/tool_failure.h"

namespace qvr::script_tool {

void require_names(const CfpChoice& cfp) {
  if (cfp.folder.empty()) throw UsageFailure({u"the folder is empty; . is the current one"});
  const bool leads_elsewhere = cfp.name.find_first_of(u"*?/\\:") != Text::npos || cfp.name.find(u'\0') != Text::npos;
  if (cfp.name.empty() || leads_elsewhere) throw UsageFailure({u"no name of a file: ", cfp.name});
}

void write_connection_file(const CfpChoice& cfp, TextView identification, const ConnectionParameters& parameters) {
  QVRcfp library;
  if (library.Asignar(identification, parameters) && library.Guardar(identification, cfp.folder, cfp.name)) return;
  throw ToolFailure({shown_path(cfp), u": cannot be written; nothing was changed"});
}

int refuse(const CfpReading& reading, const CfpChoice& cfp, const Request& request, Console& console) {
  const std::vector<Text> lines = explanation(reading, cfp);
  for (const Text& line : lines) console.complain({line});
  if (request.format == Format::Json) {
    Json document = begun_document(request, cfp);
    document["state"] = name_of(reading.state);
    document["messages"] = json_list(lines);
    write_json(document, console);
  }
  return exit_code::kFailed;
}

Text title_of(Engine engine) {
  const TextView title = engine_title(engine);
  return title.empty() ? join({u"unknown engine ", decimal(number_of(engine))}) : Text(title);
}

Json json_engine(Engine engine) {
  const TextView word = engine_word(engine);
  return word.empty() ? Json() : Json(to_utf8(word));
}

Json begun_document(const Request& request, const CfpChoice& cfp) {
  return {{"command", json_of(request.command)}, {"file", json_of(shown_path(cfp))}};
}

Json json_list(const std::vector<Text>& texts) {
  Json list = Json::array();
  for (const Text& text : texts) list.push_back(json_of(text));
  return list;
}

}  // namespace qvr::script_tool
