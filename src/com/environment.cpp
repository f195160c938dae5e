// The environment of the DLL and of the Windows qvrscript: each service is the registered component of the application
// family, else the built-in one.

#include "com/clients/com_ado.h"
#include "com/clients/com_error_report.h"
#include "com/clients/com_script_reader.h"
#include "com/clients/com_text_protection.h"
#include "com/clients/late_class.h"
#include "services/builtin_error_report.h"
#include "services/builtin_script_reader.h"
#include "services/builtin_text_protection.h"
#include "session/thread_state.h"

namespace qvr {
namespace {

using namespace com;

std::unique_ptr<services::TextProtection> make_text_protection(const Platform& platform) {
  // No fallback for a registered component that cannot be created: the built-in one does not read its files.
  if (registered_class(ComTextProtection::kProgramId)) {
    return std::make_unique<ComTextProtection>(Component::create(ComTextProtection::kProgramId));
  }
  return std::make_unique<services::BuiltinTextProtection>(platform.cryptography);
}

std::unique_ptr<services::ErrorReport> make_error_report(const Platform& platform) {
  auto builtin = std::make_unique<services::BuiltinErrorReport>(platform.message_boxes);
  if (!registered_class(ComErrorReport::kProgramId)) return builtin;
  std::unique_ptr<services::ErrorReport> component = or_default(
      {}, std::unique_ptr<services::ErrorReport>(), [&]() -> std::unique_ptr<services::ErrorReport> {
        auto created = Component::create(ComErrorReport::kProgramId);
        return std::make_unique<ComErrorReport>(std::move(created), std::move(builtin));
      });
  return component ? std::move(component) : std::move(builtin);
}

std::unique_ptr<services::Ado> make_ado(const Platform&) { return std::make_unique<ComAdo>(); }

std::unique_ptr<services::ScriptReader> make_script_reader(const Platform& platform) {
  // As with text protection: the built-in reader cannot read protected scripts.
  if (registered_class(ComScriptReader::kProgramId)) {
    return std::make_unique<ComScriptReader>(Component::create(ComScriptReader::kProgramId));
  }
  return std::make_unique<services::BuiltinScriptReader>(platform.files);
}

}  // namespace

const Environment& environment() {
  static const Environment wired{system_platform(), make_text_protection, make_error_report, make_ado,
                                 make_script_reader};
  return wired;
}

}  // namespace qvr
