// Hears what interrupts the program: SIGINT, SIGTERM and SIGHUP, or the console's events.
#pragma once

namespace qvr::script_tool {

// Hands them to `interruption()` from now on. Called before any other thread is made.
void hear_interruptions();

}  // namespace qvr::script_tool
