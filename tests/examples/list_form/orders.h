// The orders that the update of the example brings, as the list shows them.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace qvr::tests {

std::vector<std::string> all_orders();
std::vector<std::string> orders(std::initializer_list<int> numbers);

}  // namespace qvr::tests
