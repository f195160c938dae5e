// What a test can ask of this module through the environment: failures on purpose, and a record of the calls.
#pragma once

#include "frame/text.h"

namespace qvr::tests::com {

// Notes the operation in the file that TESTADO_LOG names, then throws RuntimeFailure when TESTADO_FAIL asks for it:
// a list, divided by commas, of `Operation` (each call) or `Operation:n` (the n-th call since the list was set, from 1).
// Both variables are read at each call.
void trace(TextView operation, TextView detail = {});

}  // namespace qvr::tests::com
