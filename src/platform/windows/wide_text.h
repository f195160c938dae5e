// Text for the functions of Windows and from them.
#pragma once

#include <windows.h>

#include <string>

#include "base/text.h"

namespace qvr::windows {

// This library's name, as boxes are titled and log lines begin.
inline constexpr wchar_t kLibraryName[] = L"QVRlib21";

// Windows' text type and ours hold the same units.
inline std::wstring wide(TextView text) { return std::wstring(text.begin(), text.end()); }
inline Text text_from(std::wstring_view text) { return Text(text.begin(), text.end()); }

}  // namespace qvr::windows
