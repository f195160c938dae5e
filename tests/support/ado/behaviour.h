// The behaviour of ADO, which this server exposes by automation.
#pragma once

#include "odbc/ado_command_state.h"
#include "odbc/ado_failure.h"
#include "odbc/ado_session.h"

namespace qvr::tests {

using namespace odbc;

}  // namespace qvr::tests
