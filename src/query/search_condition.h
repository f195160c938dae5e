// Writes a search as an SQL condition of an engine.
#pragma once

#include "base/engine.h"
#include "query/search_atoms.h"

namespace qvr::query {

// Only atoms with an "or" are parenthesised: an atom inside a longer condition must not look like a whole condition
// that was added before.
Text search_condition(Engine engine, SearchType type, TextView expression, const Alternatives& search);

// The pattern as the engine's literal, with an ESCAPE clause (preceded by a blank, without a trailing one) where it
// needs one.
struct PatternText {
  Text literal, escape;
};
PatternText pattern_text(Engine engine, const Operand& pattern);

}  // namespace qvr::query
