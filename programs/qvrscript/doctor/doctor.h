// The command `doctor`: checks what the library needs on this machine, and says what to do.
#pragma once

#include <string_view>
#include <vector>

#include "qvrscript/command_line/requests.h"
#include "qvrscript/doctor/doctor_facts.h"
#include "qvrscript/output/console.h"
#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

// Only errors make the command fail; notes do not.
enum class Level { Ok, Note, Error };

struct Diagnosis {
  Level level;
  std::string_view subject;
  Text message;
  Text advice;  // one sentence; empty where there is nothing to do
};

// All subjects in order.
std::vector<Diagnosis> diagnose(const Facts& facts);

// Checks this machine, and tries the library where asked to; fails when there is an error among the findings.
int doctor(const DoctorRequest& asked, const Request& request, const Surroundings& surroundings, Console& console);

}  // namespace qvr::script_tool
