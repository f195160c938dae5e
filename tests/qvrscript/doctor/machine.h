// The facts that the doctor of this test program gets.
#pragma once

#include "qvrscript/doctor/doctor_facts.h"

namespace qvr::tests {

// Everything as it should be: 32-bit, registered for the user, one provider for each engine.
script_tool::Facts sound_machine();

// What facts_of_this_machine answers from now on.
void set_machine(const script_tool::Facts& facts);

}  // namespace qvr::tests
