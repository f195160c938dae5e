// The environment of this test program: the system's platform and the built-in services.
#include "base/failure.h"
#include "services/builtin_services.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

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

}  // namespace

const Environment& environment() {
  static const Environment environment{system_platform(), services::make_builtin_text_protection,
                                       services::make_builtin_error_report, make_ado,
                                       services::make_builtin_script_reader};
  return environment;
}

}  // namespace qvr
