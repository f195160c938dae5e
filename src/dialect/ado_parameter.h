// Parameters of commands that the caller builds.
#pragma once

#include "base/engine.h"
#include "base/value.h"
#include "services/ado.h"

namespace qvr::dialect {

inline constexpr std::int32_t kReturnValue = 4;  // adParamReturnValue

struct ParameterRequest {
  TextView TipoSQLServer, Nombre;
  Value Valor;  // Missing: the value is not set
  std::int32_t Ancho = 0;
  std::int32_t Direction = 1;
};

// Appends a parameter whose type fits the engine. Type names are those of SQL Server: "INT", "BIT", "REAL", "NVARCHAR",
// "DATETIME"; for any other a message box, False, and nothing appended. Oracle has no return values: True, nothing
// appended. Throws ADO's failures, and 91 without a command.
bool AgregarParametroADO(Engine engine, services::AdoCommand* Comando, const ParameterRequest& request);

}  // namespace qvr::dialect
