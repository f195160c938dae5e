// Looks over the machine for what the library needs, and says what to do where something is missing.
#pragma once

#include <string_view>
#include <vector>

#include "qvrscript/arguments.h"
#include "qvrscript/doctor_facts.h"
#include "qvrscript/report.h"

namespace qvr::script_tool {

// A note is worth knowing and does not fail anything; what is wrong is an error.
enum class Level { Ok, Note, Error };

struct Diagnosis {
  Level level;
  std::string_view subject;
  Text message;
  Text advice;  // one sentence; empty where there is nothing to do
};

// Every subject in its order.
std::vector<Diagnosis> diagnose(const Facts& facts);

// Looks at this machine; fails when there is an error among the findings.
int doctor(const Arguments& arguments, const Console& console);

}  // namespace qvr::script_tool
