#pragma once

namespace qvr::windows {

// Whether somebody could see a box of this process. A service or a scheduled task runs on a window station that nobody
// sees: a box there would wait for ever.
bool has_visible_desktop();

}  // namespace qvr::windows
