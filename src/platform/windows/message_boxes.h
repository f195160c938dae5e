#pragma once

namespace qvr::windows {

// Whether the process has a visible window station. Services and scheduled tasks have not: a message box would block
// for ever.
bool has_visible_desktop();

}  // namespace qvr::windows
