// Library files looked at, and asked.
#pragma once

#include <string>

#include "qvrscript/doctor_facts.h"

namespace qvr::script_tool::windows {

bool exists(const std::wstring& path);

// Width and version without loading it, so that a library of the other width can be looked at as well.
LibraryFile library_file(const std::wstring& path);

// What an `Ov` of this very file says, whatever is registered.
OvMembers ov_of(const std::wstring& path);

}  // namespace qvr::script_tool::windows
