// A value with its kind as one line, for comparing and for reading failures.
#pragma once

#include <string>

#include "base/value.h"

namespace qvr::tests {

std::string describe(const Value& value);  // "Double 2.5", "String abc", "Boolean True", "Empty"

}  // namespace qvr::tests
