// The implementations of platform.h, each in a file of its own in windows/ and posix/.
#pragma once

#include "platform/platform.h"

namespace qvr::platform_parts {

Files& files();
Locale& locale();
Cryptography& cryptography();
MessageBoxes& message_boxes();
System& system();

}  // namespace qvr::platform_parts
