// What ADO does, which this server puts behind automation.
#pragma once

#include "odbc/ado_command_state.h"
#include "odbc/ado_failure.h"
#include "odbc/ado_session.h"

namespace qvr::tests {

using namespace odbc;

}  // namespace qvr::tests
