// File names and the patterns of directory searches.
#pragma once

#include "base/text.h"

namespace qvr {

// Whether the name fits the pattern without regard to case: "?" is exactly one character, "*" any run of them.
bool matches_wildcards(TextView name, TextView pattern);

}  // namespace qvr
