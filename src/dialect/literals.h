// Single values as SQL literals of an engine.
#pragma once

#include "base/engine.h"
#include "base/value.h"

namespace qvr::dialect {

// In quotes, the text's own quotes doubled; the same for every engine.
Text ComillasSQL(TextView Cadena);

// The literal of any value, chosen by its type; "Null" for what has none.
Text ExpSQL(Engine engine, const Value& Valor);

// Date literals; "Null" for a value that is no date and no text that the locale reads as one.
Text FechaSQL(Engine engine, const Value& Fecha);
Text HoraSQL(Engine engine, const Value& Fecha);
Text FechaHoraSQL(Engine engine, const Value& Fecha);  // also the texts "Ahora" and "AhoraSQL"
Text FechaSQLv(Engine engine, const Value& Fecha);     // the narrowest of the three

// The value formatted with the client's mask, between the engine's delimiters for dates.
Text LiteralFechaMotor(Engine engine, const Value& Fecha, TextView client_mask, TextView oracle_mask);

Text LogicoSQL(Engine engine, bool Valor);
Text AhoraSQL(Engine engine);         // the server's clock as an expression
Text sqlFechaSistema(Engine engine);  // the server's clock as a statement, column FechaSistema

// Conditions on a logical field; the same for every engine, since Jet stores true as -1.
Text sqlEsTrue(TextView Campo);
Text sqlEsFalse(TextView Campo);
Text sqlFalse();

// The number that the locale reads in the text, in single precision; 0 when it reads none.
float NumeroDesdeTexto(TextView text) noexcept;

}  // namespace qvr::dialect
