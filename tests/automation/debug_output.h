// The debug output of this process, seen as a debugger sees it. The library's lines only, in order.
#pragma once

#include <string>
#include <vector>

namespace qvr::tests {

// Since the test began, or since the last call.
std::vector<std::wstring> box_lines();  // of boxes that had no desktop

}  // namespace qvr::tests
