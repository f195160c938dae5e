// What a test can ask of this module through the environment: failures on purpose, and a record of the calls.
#pragma once

#include "base/text.h"

namespace qvr::tests::com {

// Notes the operation in the file that TESTADO_LOG names, then throws RuntimeFailure when TESTADO_FAIL asks for it: a
// list, divided by commas, of `Operation` (each call) or `Operation:n` (the n-th call, counted from 1 and anew whenever
// the list changes). Both variables are read at each call. Such a failure is none of the provider's: the Errors
// collection stays as it is.
void trace(TextView operation, TextView detail = {});

}  // namespace qvr::tests::com
