// A search as a condition in an engine's SQL.
#pragma once

#include "base/engine.h"
#include "query/search_atoms.h"

namespace qvr::query {

// Atoms that hold an "or" have parentheses of their own, the others none: no atom inside a longer condition looks like
// a search that was added alone.
Text search_condition(Engine engine, SearchType type, TextView expression, const Alternatives& search);

// The pattern as the engine's literal, with an ESCAPE clause (a blank before it, none behind) where it needs one.
struct PatternText {
  Text literal, escape;
};
PatternText pattern_text(Engine engine, const Operand& pattern);

}  // namespace qvr::query
