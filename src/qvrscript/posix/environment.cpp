// What stands behind the library in this program: the system, the built-in services and ADO over ODBC.
#include "frame/thread_state.h"
#include "services/builtin_error_report.h"
#include "services/builtin_script_reader.h"
#include "services/builtin_text_protection.h"
#include "services/odbc/odbc_ado.h"

namespace qvr {
namespace {

std::unique_ptr<services::TextProtection> make_protection(const Platform& platform) {
  return std::make_unique<services::BuiltinTextProtection>(platform.cryptography);
}

std::unique_ptr<services::ErrorReport> make_report(const Platform& platform) {
  return std::make_unique<services::BuiltinErrorReport>(platform.message_boxes);
}

std::unique_ptr<services::Ado> make_ado(const Platform&) { return odbc::make_odbc_ado(); }

std::unique_ptr<services::ScriptReader> make_script_reader(const Platform& platform) {
  return std::make_unique<services::BuiltinScriptReader>(platform.files);
}

}  // namespace

const Environment& environment() {
  static const Environment environment{system_platform(), make_protection, make_report, make_ado, make_script_reader};
  return environment;
}

}  // namespace qvr
