// What a test can ask of this module: failures on purpose, and a record of the calls.
#pragma once

#include "base/text.h"

namespace qvr::tests::com {

// Notes the operation in the log of WatchCalls, then throws RuntimeFailure when its list of failures asks for it. Such
// a failure is none of the provider's: the Errors collection stays as it is.
void trace(TextView operation, TextView detail = {});

}  // namespace qvr::tests::com

// Exported. Failures are a list, divided by commas, of `Operation` (each call) or `Operation:n` (the n-th call from now
// on, counted from 1); the log is a file's path. Null for both ends the watch.
extern "C" void WatchCalls(const wchar_t* failures, const wchar_t* log);

// Exported. The calls of this thread are told before they are made; null ends that.
extern "C" void TellCalls(void (*on_call)(const wchar_t* operation, void* context), void* context);
