#include "services/builtin_services.h"

#include "services/builtin_error_report.h"
#include "services/builtin_script_reader.h"
#include "services/builtin_text_protection.h"

namespace qvr::services {

std::unique_ptr<TextProtection> make_builtin_text_protection(const Platform& platform) {
  return std::make_unique<BuiltinTextProtection>(platform.cryptography);
}

std::unique_ptr<ErrorReport> make_builtin_error_report(const Platform& platform) {
  return std::make_unique<BuiltinErrorReport>(platform.message_boxes);
}

std::unique_ptr<ScriptReader> make_builtin_script_reader(const Platform& platform) {
  return std::make_unique<BuiltinScriptReader>(platform.files);
}

}  // namespace qvr::services
