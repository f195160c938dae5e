// Where a test program's traces come from: the sink, or the debug output of the library.
#pragma once

namespace qvr::tests {

// Between a test's start and end; what comes then is given by `traced`, which each source defines.
void listen_to_traces(bool on);

}  // namespace qvr::tests
