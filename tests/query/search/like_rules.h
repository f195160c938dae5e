// LIKE by the rules of the three engines.
#pragma once

#include "base/engine.h"

namespace qvr::tests {

Text in_capitals(TextView text);

// Jet takes no notice of case and knows sets in brackets, SQL Server sets and an escape character, Oracle only the
// latter. The two compare case as it stands: columns may have such a collation.
bool is_like(Engine engine, TextView text, TextView pattern, TextView escape);

}  // namespace qvr::tests
