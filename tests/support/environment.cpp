// What stands behind the library in this program where a test puts nothing else: the system and the built-in services.
#include "frame/thread_state.h"
#include "services/builtin_error_report.h"
#include "services/builtin_script_reader.h"
#include "services/builtin_text_protection.h"

namespace qvr {
namespace {

std::unique_ptr<services::TextProtection> make_protection(const Platform& platform) {
  return std::make_unique<services::BuiltinTextProtection>(platform.cryptography);
}

std::unique_ptr<services::ErrorReport> make_report(const Platform& platform) {
  return std::make_unique<services::BuiltinErrorReport>(platform.message_boxes);
}

// No database is behind a thread that no test has prepared.
class NoAdo final : public services::Ado {
 public:
  std::unique_ptr<services::AdoConnection> new_connection() override { refuse(); }
  std::unique_ptr<services::AdoCommand> new_command() override { refuse(); }
  std::unique_ptr<services::AdoParameter> new_parameter() override { refuse(); }

 private:
  [[noreturn]] static void refuse() { throw RuntimeFailure(failure_number::kCannotCreateObject); }
};

std::unique_ptr<services::Ado> make_ado(const Platform&) { return std::make_unique<NoAdo>(); }

std::unique_ptr<services::ScriptReader> make_script_reader(const Platform& platform) {
  return std::make_unique<services::BuiltinScriptReader>(platform.files);
}

}  // namespace

const Environment& environment() {
  static const Environment environment{system_platform(), make_protection, make_report, make_ado,
                                       make_script_reader};
  return environment;
}

}  // namespace qvr
