// The pieces of the system platform, one file each.
#pragma once

#include <string>

#include "platform/platform.h"

namespace qvr::posix {

Settings& settings();
UserLanguage& user_language();
Files& files();
MessageBoxes& message_boxes();
HostEvents& host_events();
Locale& locale();
Clock& clock();
Cryptography& cryptography();
OwnModule& own_module();

// A path as this system writes it: UTF-8 with "/" for "\".
std::string native_path(TextView path);

// The user's locale name ("es_ES"), from the environment.
std::string locale_name();

}  // namespace qvr::posix
