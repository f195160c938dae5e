// Writes a search as an SQL condition of an engine.
#pragma once

#include "base/engine.h"
#include "query/search/atoms.h"

namespace qvr::query {

// Only atoms with an "or" are parenthesised: an atom inside a longer condition must not look like a whole condition
// that was added before.
Text search_condition(Engine engine, SearchType type, TextView expression, const Alternatives& search);

}  // namespace qvr::query
