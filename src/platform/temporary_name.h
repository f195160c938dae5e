// The name that a new file has until it takes its own: "x.cfp.qvr1A2B3C4D.tmp" for "x.cfp".
#pragma once

#include <cstdint>

#include "base/text.h"

namespace qvr {

// What stands behind the file's name.
Text temporary_suffix(std::uint32_t number);
bool is_temporary_suffix(TextView text);

}  // namespace qvr
