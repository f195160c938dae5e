// Registration and its exact removal.
#pragma once

#include "com/com.h"

namespace qvr::com {

enum class Scope { Machine, User };  // User: HKEY_CURRENT_USER, without administrator rights

// Writes the keys of the classes, the interfaces and the type library. On failure all of them are removed, those of an
// earlier registration too.
HRESULT register_library(Scope scope) noexcept;

// Removes exactly those keys, and parent keys of a user that become empty; missing keys are no failure. Keys shared
// with the library of the other width stay while that one is registered.
HRESULT unregister_library(Scope scope) noexcept;

}  // namespace qvr::com
