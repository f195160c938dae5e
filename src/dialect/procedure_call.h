// Calls of stored procedures.
#pragma once

#include <functional>

#include "base/engine.h"
#include "base/value.h"
#include "services/ado.h"

namespace qvr::dialect {

// Puts the results where the caller wants them; throws when one does not fit there.
using GiveBack = std::function<void(const Value& results)>;

// Calls a stored procedure of SQL Server with the elements of the array as its parameters. When the procedure returns
// 0, the parameters' values go into the array and to `give_back`. False for any other return value, and for any other
// engine without a call. Throws ADO's failures, those of `give_back`, and 91 without a connection.
bool EjecutarProcSQL7(Engine engine, services::AdoConnection* Conexion, TextView NombreProc, Value& Parametros,
                      const GiveBack& give_back = {});

}  // namespace qvr::dialect
