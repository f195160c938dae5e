// INSERT and UPDATE with every value as a literal. Lists are one-dimensional arrays; a field and its value have the
// same index. All throw for what is no array, and for an array of no or several dimensions or with too few elements.
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

// "INSERT INTO t(f,f) VALUES(v,v)".
Text SqlInsert2(Engine engine, TextView NombreTabla, const Value& MCampos, const Value& MValores);

// "UPDATE t SET f=v,f=v WHERE c", without WHERE for an empty condition.
Text SqlUpdate2(Engine engine, TextView NombreTabla, const Value& MCampos, const Value& MValores, TextView Condicion);

}  // namespace qvr::dialect
