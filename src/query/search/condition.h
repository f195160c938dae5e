// Writes a search as an SQL condition of an engine.
#pragma once

#include <optional>

#include "base/engine.h"
#include "query/search/atoms.h"

namespace qvr::query {

// Only atoms with an "or" are parenthesised: an atom inside a longer condition must not look like a whole condition
// that was added before. Nothing for a condition that is too long for the engines.
std::optional<Text> search_condition(Engine engine, SearchType type, TextView expression, const Alternatives& search);

}  // namespace qvr::query
