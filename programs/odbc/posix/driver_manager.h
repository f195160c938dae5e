// Loading ODBC's driver manager.
#pragma once

#include <span>

#include "odbc/odbc_api.h"

namespace qvr::odbc {

// The functions of the first of these libraries that has them all; there is at least one name. Throws RuntimeFailure
// where none has.
Api load_driver_manager(std::span<const char* const> libraries);

}  // namespace qvr::odbc
