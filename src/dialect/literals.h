// Single values as SQL literals of an engine.
#pragma once

#include "base/engine.h"
#include "base/value.h"

namespace qvr::dialect {

// A string literal, embedded quotes doubled; the same for every engine.
Text ComillasSQL(TextView Cadena);

// The literal of any value, by its type; "Null" for a value without a literal.
Text ExpSQL(Engine engine, const Value& Valor);

// Date literals; "Null" for a value that is neither a date nor a text that the locale reads as a date.
Text FechaSQL(Engine engine, const Value& Fecha);
Text HoraSQL(Engine engine, const Value& Fecha);
Text FechaHoraSQL(Engine engine, const Value& Fecha);  // also the texts "Ahora" and "AhoraSQL"
Text FechaSQLv(Engine engine, const Value& Fecha);     // date, time or both, by what the value has

// The first day that a date literal of the engine can hold.
Date first_date(Engine engine);

// The date formatted by the mask, between the engine's date delimiters.
Text LiteralFechaMotor(Engine engine, const Value& Fecha, TextView client_mask, TextView oracle_mask);

Text LogicoSQL(Engine engine, bool Valor);
Text AhoraSQL(Engine engine);         // the server's clock as an expression
Text sqlFechaSistema(Engine engine);  // the server's clock as a statement, column FechaSistema

// Conditions on a logical field; the same for every engine, since Jet stores true as -1.
Text sqlEsTrue(TextView Campo);
Text sqlEsFalse(TextView Campo);
Text sqlFalse();

// Parses a number by the locale, in single precision; 0 when it is none.
float NumeroDesdeTexto(TextView text) noexcept;

}  // namespace qvr::dialect
