// What the registry says of the library's classes and of those of others.
#pragma once

#include <windows.h>

#include <string>

#include "qvrscript/doctor_facts.h"

namespace qvr::script_tool::windows {

std::size_t class_count();

// What is registered of the library in each scope and for each width. Wine keeps one set of the user's classes for both
// widths: with `one_user_view` it counts for the width of the file that it leads to.
std::vector<Registration> registrations(bool one_user_view);

// Names of the library's classes that are registered, but whose class is not, for either width.
std::vector<Text> stale_names();

// The type library's file for this width, the user's before the machine's; empty for none.
std::wstring registered_type_library();

// A class of others by its name, for this width; usable when its file is there.
Component provider(const wchar_t* program_id);

// The same; usable when an object can be made.
Component component(const wchar_t* program_id);

}  // namespace qvr::script_tool::windows
