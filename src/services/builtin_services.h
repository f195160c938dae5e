// Factories of the built-in services, for `Environment`.
#pragma once

#include <memory>

#include "platform/platform.h"
#include "services/error_report.h"
#include "services/script_reader.h"
#include "services/text_protection.h"

namespace qvr::services {

std::unique_ptr<TextProtection> make_builtin_text_protection(const Platform& platform);
std::unique_ptr<ErrorReport> make_builtin_error_report(const Platform& platform);
std::unique_ptr<ScriptReader> make_builtin_script_reader(const Platform& platform);

}  // namespace qvr::services
