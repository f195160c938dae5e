// The pieces of the system platform, one file each, and what several of them need.
#pragma once

#include <windows.h>

#include <string>

#include "platform/platform.h"

namespace qvr::windows {

Settings& settings();
UserLanguage& user_language();
Files& files();
MessageBoxes& message_boxes();
HostEvents& host_events();
Locale& locale();
Clock& clock();
Cryptography& cryptography();
OwnModule& own_module();

// This library's name, as boxes are titled and log lines begin.
inline constexpr wchar_t kLibraryName[] = L"QVRlib21";

// Windows' text type and ours hold the same units.
inline std::wstring wide(TextView text) { return std::wstring(text.begin(), text.end()); }
inline Text text_from(std::wstring_view text) { return Text(text.begin(), text.end()); }

}  // namespace qvr::windows
