// Statements with every value written as a literal of the engine. Lists are arrays of one dimension; fields and values
// that belong together have the same index. All throw for a list that cannot be walked or is too short.
#pragma once

#include <cstdint>

#include "base/engine.h"
#include "base/value.h"

namespace qvr::dialect {

// "INSERT INTO t VALUES (v, v)".
Text SqlINSERT(Engine engine, TextView NombreTabla, const Value& MValores);

// "UPDATE t SET f=v, f=v WHERE k=n"; the key field is left out of the fields set.
Text SqlUPDATE(Engine engine, TextView NombreTabla, TextView NombreCampoClave, std::int32_t Clave_cd,
               const Value& MCampos, const Value& MValores);

// "INSERT INTO t(f,f) VALUES(v,v)"; empty when a list is no array.
Text SqlInsert2(Engine engine, TextView NombreTabla, const Value& MCampos, const Value& MValores);

// "UPDATE t SET f=v,f=v WHERE c", without WHERE for an empty condition; empty when a list is no array.
Text SqlUpdate2(Engine engine, TextView NombreTabla, const Value& MCampos, const Value& MValores, TextView Condicion);

}  // namespace qvr::dialect
