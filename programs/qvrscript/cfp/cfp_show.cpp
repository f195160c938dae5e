#include <algorithm>
#include <array>

#include "base/utf8.h"
#include "qvrscript/cfp/cfp.h"
#include "qvrscript/cfp/cfp_parts.h"
#include "qvrscript/connection/asked_secret.h"

namespace qvr::script_tool {
namespace {

constexpr TextView kDots = u"********";  // whatever the length

struct Row {
  std::size_t line;  // of the file
  Text ConnectionParameters::*field;
  bool password = false;
};

constexpr std::array<Row, 8> kRows{{
    {2, &ConnectionParameters::Provider},
    {3, &ConnectionParameters::DataSource},
    {4, &ConnectionParameters::InitialCatalogOTablespace},
    {5, &ConnectionParameters::UsuarioAdm},
    {6, &ConnectionParameters::ClaveAdm, true},
    {7, &ConnectionParameters::UsuarioCli},
    {8, &ConnectionParameters::ClaveCli, true},
    {9, &ConnectionParameters::OtrosParametros},
}};

Text label(TextView title) {
  constexpr std::size_t kWidth = 26;
  Text label = join({title, u":"});
  label.resize(std::max(label.size() + 1, kWidth), u' ');
  return label;
}

// A line of the console holds no secret, but a document may: what is revealed must not get into a log either.
class Lines {
 public:
  Lines(Console& console, bool reveal) : console_(console), reveal_(reveal) {}
  void add(TextView title, TextView value) {
    const Text line = join({label(title), value.empty() ? TextView(u"(none)") : value});
    if (reveal_) {
      console_.document(to_utf8(printable(line)));
    } else {
      console_.say({line});
    }
  }

 private:
  Console& console_;
  bool reveal_;
};

void show_text(const CfpShowRequest& asked, const ConnectionParameters& parameters, Console& console) {
  Lines lines(console, asked.reveal);
  lines.add(u"file", shown_path(asked.cfp));
  lines.add(title_of_cfp_line(1), title_of(parameters.MotorBD));
  for (const Row& row : kRows) {
    const Text& value = parameters.*row.field;
    lines.add(title_of_cfp_line(row.line), row.password && !asked.reveal && !value.empty() ? kDots : TextView(value));
  }
}

void show_json(const CfpShowRequest& asked, const Request& request, const ConnectionParameters& parameters,
               Console& console) {
  Json document = begun_document(request, asked.cfp);
  document["engine"] = json_engine(parameters.MotorBD);
  document["engineNumber"] = number_of(parameters.MotorBD);
  for (const Row& row : kRows) {
    const std::string name(name_of_cfp_line(row.line));
    const Text& value = parameters.*row.field;
    const bool hidden = row.password && !asked.reveal;
    document[name] = hidden ? Json() : json_of(value);
    if (row.password) document[name + "Set"] = !value.empty();
  }
  if (asked.reveal) {
    console.document(document.dump(-1, ' ', false, Json::error_handler_t::replace));
  } else {
    write_json(document, console);
  }
}

}  // namespace

int cfp_show(const CfpShowRequest& asked, const Request& request, const Surroundings& surroundings, Console& console) {
  require_names(asked.cfp);
  const SecretText id = asked_identification(asked.cfp.id_variable, surroundings, console);
  const CfpReading reading = read_connection_file(asked.cfp, id);
  if (reading.state != CfpState::Fine) return refuse(reading, asked.cfp, request, console);
  // The passwords are not added to the secrets: they are not written, and a user or a server may well be called the
  // same.
  if (request.format == Format::Json) {
    show_json(asked, request, reading.parameters, console);
  } else {
    show_text(asked, reading.parameters, console);
  }
  if (asked.reveal) console.complain({u"the passwords are shown as they are"});
  return exit_code::kDone;
}

}  // namespace qvr::script_tool
