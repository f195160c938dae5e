// Pieces of clauses by engine. Most have a blank at both ends, so that callers can concatenate them. The empty text for
// an unknown engine, without a message.
#pragma once

#include <cstdint>

#include "base/engine.h"
#include "base/value.h"

namespace qvr::dialect {

// The limit of rows before the select list (" TOP 10 "); empty for an engine without TOP and for a limit below 1.
Text ClausulaTop(Engine engine, std::int32_t count);

// The limit of rows as a condition of Oracle (RowNum); empty for the other engines and for a limit below 1.
// `prepend_and` writes " And " in front. The two differ in the parentheses.
Text sqlRowNum(Engine engine, std::int32_t count, bool prepend_and);
Text CondicionRowNum(Engine engine, std::int32_t count, bool prepend_and);

// The alias of a column, to be appended to its expression; no trailing blank.
Text ClausulaAlias(Engine engine, TextView alias);

// The pieces around an alias, for callers that write many; nothing for an unknown engine.
struct AliasQuotes {
  TextView opener, closer;
  bool known() const { return !opener.empty(); }
};
AliasQuotes alias_quotes(Engine engine);

// The elements joined by the engine's concatenation operator (none for an unknown engine). Throws CallerFailure 5
// without elements and 9 for an array of no or several dimensions; RuntimeFailure 13 or 94 for what is no array or does
// not convert to text.
Text sqlConcatenar(Engine engine, const Value& Cadenas);

// The field, or the alternative where the field is null.
Text sqlEsNulo(Engine engine, TextView field, TextView alternative);

// CASE: the field's value mapped by pairs of (value, result); an odd last element is the default. A message box for
// Jet, which has no CASE. Throws for what is no array, has no elements, or has one that does not convert to text.
Text sqlCASE(Engine engine, TextView field, const Value& pairs);

}  // namespace qvr::dialect
