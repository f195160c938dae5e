// Wildcards of file names.
#pragma once

#include "base/text.h"

namespace qvr {

// Whether the name matches the pattern without regard to case: "?" is exactly one character, "*" any number of them.
bool matches_wildcards(TextView name, TextView pattern);

}  // namespace qvr
