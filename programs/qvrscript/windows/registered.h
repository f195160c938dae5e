// Reads the registration of the library's and of other classes.
#pragma once

#include <windows.h>

#include <string>

#include "qvrscript/doctor/doctor_facts.h"

namespace qvr::script_tool::windows {

std::size_t class_count();

// The registration of the library in each scope and for each width. Wine has no registry views of the user's classes:
// with `one_user_view` a registration counts for the width of its file.
std::vector<Registration> registrations(bool one_user_view);

// ProgIDs of the library that are registered while their CLSID is not, in either width.
std::vector<Text> stale_names();

// The type library's file for this width, the user's before the machine's; empty for none.
std::wstring registered_type_library();

// Another class by its ProgID, for this width; usable when its file exists.
Component provider(const wchar_t* program_id);

// The same; usable when an object can be created.
Component component(const wchar_t* program_id);

}  // namespace qvr::script_tool::windows
