// Which paths can lead to a file on a disk.
#pragma once

#include "base/text.h"

namespace qvr::windows {

// False for devices ("Aux.cfp", "C:\Datos\COM1", "\\.\..."), pipes, mailslots, streams of a file ("x.cfp:s") and names
// that Windows changes (a dot or a blank at the end). Opening one of them can reach a device and wait for it, so this
// is asked before; whether something else is at the end of the path shows when it is open.
bool is_disk_path(TextView path);

}  // namespace qvr::windows
