// ADO over ODBC without automation, for programs that run natively.
#pragma once

#include <memory>

#include "services/ado.h"

namespace qvr::odbc {

// Commands accept connections of this implementation only, and no parameters: procedures are called through automation
// only.
std::unique_ptr<services::Ado> make_odbc_ado();

}  // namespace qvr::odbc
