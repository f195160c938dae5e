#include "qvrscript/doctor/try/tried_machine.h"

namespace qvr::script_tool {

std::unique_ptr<TriedMachine> machine_to_try() { return nullptr; }

}  // namespace qvr::script_tool
