// The keys and values of the registry's classes, as lines that can be compared: everything of ours whole, of everybody
// else the first two levels.
#pragma once

#include <windows.h>

#include <set>
#include <string>

namespace qvr::tests {

using RegistryLines = std::set<std::wstring>;

// Below Software\Classes of the machine and of the user, in both widths: one line for each key and each value.
RegistryLines registry_snapshot();

// Of the same only the keys that are the library's by their identifiers and names: much quicker.
RegistryLines own_registry_keys();

// What the second has and the first has not.
RegistryLines added(const RegistryLines& before, const RegistryLines& after);

}  // namespace qvr::tests
