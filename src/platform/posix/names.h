// Paths and locale names of this system.
#pragma once

#include <string>

#include "base/text.h"

namespace qvr::posix {

// A path: UTF-8 with "/" for "\". Throws for a NUL.
std::string native_path(TextView path);

// The user's locale ("es_ES"), from the environment.
std::string locale_name();

}  // namespace qvr::posix
