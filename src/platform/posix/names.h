// Names as this system writes them.
#pragma once

#include <string>

#include "base/text.h"

namespace qvr::posix {

// A path: UTF-8 with "/" for "\". Throws where it holds a zero unit.
std::string native_path(TextView path);

// The user's locale ("es_ES"), from the environment.
std::string locale_name();

}  // namespace qvr::posix
