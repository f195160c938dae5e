// What this program does as a process of its own, most of them one thing again and again until a test ends them.
#pragma once

namespace qvr::tests {

// Followed by the folder: saves the one or the other file under one name.
inline constexpr wchar_t kSaves[] = L"--saves";
// Followed by "user" or "machine": registers and unregisters.
inline constexpr wchar_t kRegisters[] = L"--registers";
// Followed by "used" or "unused": loads the library a thousand times and more. 0 when nothing more stays behind than
// may; what does is printed.
inline constexpr wchar_t kLoads[] = L"--loads";

// Followed by the number of a host's floating-point state: loads the library in it, asks for a class object and lets
// go. 0 when the state is there afterwards.
inline constexpr wchar_t kLoadsInState[] = L"--loads-in-state";

// Followed by the number of slots of thread-local storage that are left: loads the library. 0 when it loads and works,
// 10 when it cannot be loaded and the process goes on, also after another attempt with all slots free.
inline constexpr wchar_t kLoadsWithSlots[] = L"--loads-with-slots";

// What the two files hold; the identification of both is "id", their name "ended".
inline constexpr const wchar_t* kProviders[] = {L"first", L"second"};
inline constexpr int kOptionsLengths[] = {10, 40000};

// The child sets this event when it has begun; the name ends in its parent's number.
inline constexpr wchar_t kBegun[] = L"automation_stress_begun_";

// The role that the command line names; null for none.
using Role = int (*)();
Role child_role();

}  // namespace qvr::tests
