// Calls of stored procedures.
#pragma once

#include "base/engine.h"
#include "base/value.h"
#include "services/ado.h"

namespace qvr::dialect {

// Calls a stored procedure of SQL Server with the elements of the array as its parameters, and writes the parameters'
// values back into the array when the procedure returns 0. False for any other return value, and for any other engine
// without a call. Throws ADO's failures, and 91 without a connection.
bool EjecutarProcSQL7(Engine engine, services::AdoConnection* Conexion, TextView NombreProc, Value& Parametros);

}  // namespace qvr::dialect
