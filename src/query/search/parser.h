// Parses a search.
#pragma once

#include "base/engine.h"
#include "query/search/atoms.h"

namespace qvr::query {

// Nothing for a text that is not a valid search for this column type.
std::optional<Alternatives> parse_search(TextView normalised, SearchType type, Engine engine);

}  // namespace qvr::query
