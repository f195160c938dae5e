// Calls of stored procedures.
#pragma once

#include "base/engine.h"
#include "base/value.h"
#include "services/ado.h"

namespace qvr::dialect {

// Calls a procedure of SQL Server with the elements of the array as its parameters in order, and puts the parameters'
// values back into the array when the procedure returns 0. False for any other return value, and at once for another
// engine; throws what ADO refuses, and 91 without a connection.
bool EjecutarProcSQL7(Engine engine, services::AdoConnection* Conexion, TextView NombreProc, Value& Parametros);

}  // namespace qvr::dialect
