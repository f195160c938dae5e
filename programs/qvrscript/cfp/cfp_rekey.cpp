#include <tuple>

#include "qvrscript/cfp/cfp.h"
#include "qvrscript/cfp/cfp_parts.h"
#include "qvrscript/command_line/usage_failure.h"
#include "qvrscript/connection/asked_secret.h"
#include "qvrscript/tool_failure.h"

namespace qvr::script_tool {
namespace {

bool same_fields(const ConnectionParameters& a, const ConnectionParameters& b) {
  const auto fields = [](const ConnectionParameters& each) {
    return std::tie(each.MotorBD, each.Provider, each.DataSource, each.InitialCatalogOTablespace, each.UsuarioAdm,
                    each.ClaveAdm, each.UsuarioCli, each.ClaveCli, each.OtrosParametros);
  };
  return fields(a) == fields(b);
}

}  // namespace

int cfp_rekey(const CfpRekeyRequest& asked, const Request& request, const Surroundings& surroundings,
              Console& console) {
  require_names(asked.cfp);
  const SecretText id = asked_identification(asked.cfp.id_variable, surroundings, console);
  const CfpReading former = read_connection_file(asked.cfp, id);
  if (former.state != CfpState::Fine) return refuse(former, asked.cfp, request, console);
  const SecretText fresh = asked_new_identification(asked.new_id_variable, u"--new-id-env", surroundings, console);
  if (TextView(id) == TextView(fresh)) {
    throw UsageFailure({u"the new identification is the one that the file has; nothing was changed"});
  }
  write_connection_file(asked.cfp, fresh, former.parameters);
  const CfpReading written = read_connection_file(asked.cfp, fresh);
  if (written.state != CfpState::Fine || !same_fields(written.parameters, former.parameters)) {
    throw ToolFailure({shown_path(asked.cfp), u": was written, and does not read back as it was"});
  }
  if (request.format == Format::Json) {
    write_json(begun_document(request, asked.cfp), console);
  } else if (!request.quiet) {
    console.say({shown_path(asked.cfp), u": has the new identification"});
  }
  return exit_code::kDone;
}

}  // namespace qvr::script_tool
