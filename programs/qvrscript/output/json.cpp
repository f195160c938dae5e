#include "qvrscript/output/json.h"

#include "base/utf8.h"

namespace qvr::script_tool {
namespace {

void leave_out(Json& value, const Secrets& secrets) {
  if (value.is_string()) {
    const auto text = from_utf8(value.get_ref<const std::string&>());
    if (text) value = to_utf8(secrets.left_out(*text));
  }
  if (!value.is_structured()) return;
  for (Json& each : value) leave_out(each, secrets);
}

}  // namespace

Json json_of(TextView text) { return to_utf8(text); }

void write_json(const Json& document, Console& console) {
  Json shown = document;
  leave_out(shown, console.secrets);
  // A lone surrogate is no UTF-8: it becomes the replacement character.
  console.document(shown.dump(-1, ' ', false, Json::error_handler_t::replace));
}

}  // namespace qvr::script_tool
