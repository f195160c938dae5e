// The doctor's report: a file that a user can send.
#pragma once

#include "qvrscript/doctor/try/trial.h"

namespace qvr::script_tool {

// A finding as lines of text.
TextView level_word(Level level);
std::vector<Text> lines_of(const Diagnosis& each);
Text count_of_errors(std::size_t errors);

// All findings, and the steps with their times, without secrets. Throws ToolFailure where it cannot be written.
void write_report(TextView path, const std::vector<Diagnosis>& found, const TrialResult& tried, Console& console);

}  // namespace qvr::script_tool
