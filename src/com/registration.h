// Registration and its exact removal.
#pragma once

#include "com/com.h"

namespace qvr::com {

enum class Scope { Machine, User };  // User: HKEY_CURRENT_USER, without administrator rights

// Writes the keys of the classes, the interfaces and the type library. On failure everything is as it was before: an
// earlier registration goes on working.
HRESULT register_library(Scope scope) noexcept;

// Removes exactly those keys, and parent keys of a user that become empty; missing keys are no failure. Keys shared
// with the library of the other width stay while that one is registered.
HRESULT unregister_library(Scope scope) noexcept;

}  // namespace qvr::com
