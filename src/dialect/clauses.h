// Pieces of clauses as each engine writes them. Most carry a blank at both ends, so that callers paste them together
// without adding any. A number that is no engine gives the empty text, without a message.
#pragma once

#include <cstdint>

#include "base/engine.h"
#include "base/value.h"

namespace qvr::dialect {

// The limit of rows that stands before the select list (" TOP 10 "); empty where the engine has none there, and for a
// limit below 1.
Text ClausulaTop(Engine engine, std::int32_t count);

// The limit of rows as a condition of Oracle; empty for the other engines and for a limit below 1. `prepend_and` writes
// " And " in front. The two differ in the parentheses.
Text sqlRowNum(Engine engine, std::int32_t count, bool prepend_and);
Text CondicionRowNum(Engine engine, std::int32_t count, bool prepend_and);

// The name of a column in the result, to stand behind its expression; no blank at the end.
Text ClausulaAlias(Engine engine, TextView alias);

// What stands around an alias, for those who write many; nothing for a number that is no engine.
struct AliasQuotes {
  TextView opener, closer;
  bool known() const { return !opener.empty(); }
};
AliasQuotes alias_quotes(Engine engine);

// The elements joined by the engine's concatenation operator (none for a number that is no engine). Throws failure 5
// without elements, 9 for an array of no or several dimensions, both meant for the caller; 13 or 94 for what is no
// array or has no text.
Text sqlConcatenar(Engine engine, const Value& Cadenas);

// The field, or the alternative where it is null.
Text sqlEsNulo(Engine engine, TextView field, TextView alternative);

// The field's value mapped by pairs of (value, result), an odd last element being the default. Jet has no such
// expression and gets a message box. Throws for what is no array, has no elements or holds what has no text.
Text sqlCASE(Engine engine, TextView field, const Value& pairs);

}  // namespace qvr::dialect
