// Blocks of memory and handles, counted before and after.
#pragma once

#include <functional>

#include "automation/host.h"

namespace qvr::tests {

// The blocks of all heaps of the process that are in use.
std::size_t blocks_in_use();

// Automation keeps released strings for reuse, which would hide and feign leaks.
void stop_string_cache();

// Runs the body often and expects that the second half of the runs costs no memory and no handle that stays.
void expect_no_leak(const std::function<void()>& body);

}  // namespace qvr::tests
