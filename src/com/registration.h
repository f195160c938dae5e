// Registration: what regsvr32 asks for, and its exact removal.
#pragma once

#include "com/com.h"

namespace qvr::com {

enum class Scope { Machine, User };  // User needs no administrator rights and shows to this user only

// Writes the keys of every class, interface and the type library. On failure nothing of it stays behind, an earlier
// registration included.
HRESULT register_library(Scope scope) noexcept;

// Removes exactly those keys, and a user's keys above them that are empty then; what is not there is no failure. Keys
// that the library of the other width shares with this one stay as long as that one is registered.
HRESULT unregister_library(Scope scope) noexcept;

}  // namespace qvr::com
