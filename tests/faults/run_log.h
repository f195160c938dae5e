// Invariants of every run of the script runner.
#pragma once

#include <string>

#include "support/call_log.h"

namespace qvr::tests {

// One Terminado, with the outcome and as the last; what was opened is closed, what was begun is committed or taken
// back, one of the two, and everything that was made is released. True only after a commit, where there was a
// transaction. `refused` are the operations that ADO refused.
void expect_whole_run(const Lines& log, bool outcome, const Lines& refused = {});

std::size_t lines_that_begin(const Lines& log, const std::string& beginning);

}  // namespace qvr::tests
