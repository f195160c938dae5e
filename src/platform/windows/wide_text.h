// Conversion between Text and std::wstring.
#pragma once

#include <windows.h>

#include <string>

#include "base/text.h"

namespace qvr::windows {

// The title of boxes and the prefix of log lines.
inline constexpr wchar_t kLibraryName[] = L"QVRlib21";

// wchar_t and char16_t are both UTF-16 code units on Windows.
inline std::wstring wide(TextView text) { return std::wstring(text.begin(), text.end()); }
inline Text text_from(std::wstring_view text) { return Text(text.begin(), text.end()); }

}  // namespace qvr::windows
