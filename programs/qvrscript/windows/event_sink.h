// Hears the events of an automation object.
#pragma once

#include <memory>

#include "com/com.h"
#include "qvrscript/doctor/try/tried_machine.h"

namespace qvr::script_tool::windows {

// Until the answer ends. Throws RuntimeFailure where the object has no such events.
std::shared_ptr<void> listening(IDispatch& source, REFIID events, TriedMachine::Heard heard);

}  // namespace qvr::script_tool::windows
