// From what a user typed to what it means.
#pragma once

#include "base/engine.h"
#include "query/search_atoms.h"

namespace qvr::query {

// Nothing for a text that is no search for such a column.
std::optional<Alternatives> parse_search(TextView normalised, SearchType type, Engine engine);

}  // namespace qvr::query
