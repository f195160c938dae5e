// One SQL command on an open connection.
#pragma once

#include "base/engine.h"
#include "base/text.h"
#include "services/ado.h"

namespace qvr {

struct OneCommand {
  services::AdoConnection* connection;  // null: none
  TextView text;
  Engine motor;
};

// Runs it as a new command of `ado` without a time limit; null: of one made for it. False after the failure was
// reported as that of Ejecutar1Comando.
bool run_one_command(const OneCommand& command, services::Ado* ado) noexcept;

}  // namespace qvr
