// What the library traces during a test. A test fails that leaves a traced failure unannounced.
#pragma once

#include <vector>

#include "base/failure.h"
#include "base/text.h"

namespace qvr::tests {

using Traces = std::vector<Text>;

// The line of a failure with its number's own description; `member` has its class, as in "QVRcfp.Crear".
inline Text trace_of(TextView member, std::int32_t number) {
  return join({member, u": ", decimal(number), u" ", description_of(number)});
}

// The lines so far, without the place at their end, in order; they count as announced.
Traces traced();

// For a test whose inputs fail by the hundred: announces all that this test still traces.
void expect_any_traces();

}  // namespace qvr::tests
