// Facts about a library file.
#pragma once

#include <string>

#include "qvrscript/doctor/doctor_facts.h"

namespace qvr::script_tool::windows {

bool exists(const std::wstring& path);

// Width and version without loading it, which works for the other width as well.
LibraryFile library_file(const std::wstring& path);

// What `Ov` of this file answers, created without the registry.
OvMembers ov_of(const std::wstring& path);

}  // namespace qvr::script_tool::windows
