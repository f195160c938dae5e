// The environment of this program: the system's platform, the built-in services and ADO over ODBC.
#include "odbc/odbc_ado.h"
#include "services/builtin_services.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

std::unique_ptr<services::Ado> make_ado(const Platform&) { return odbc::make_odbc_ado(); }

}  // namespace

const Environment& environment() {
  static const Environment environment{system_platform(), services::make_builtin_text_protection,
                                       services::make_builtin_error_report, make_ado,
                                       services::make_builtin_script_reader};
  return environment;
}

}  // namespace qvr
