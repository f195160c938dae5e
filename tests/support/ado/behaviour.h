// What ADO does, which this server puts behind automation.
#pragma once

#include "services/odbc/ado_command_state.h"
#include "services/odbc/ado_failure.h"
#include "services/odbc/ado_session.h"

namespace qvr::tests {

using namespace odbc;

}  // namespace qvr::tests
