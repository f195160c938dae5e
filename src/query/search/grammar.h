// Reads the tokens of a search by the type of its column.
#pragma once

#include <optional>
#include <span>

#include "base/engine.h"
#include "query/search/atoms.h"
#include "query/search/tokens.h"

namespace qvr::query {

// Nothing for tokens that are not a valid search for this column type, and for one that could select nothing.
std::optional<Alternatives> parse_search(std::span<const Token> tokens, SearchType type, Engine engine);

}  // namespace qvr::query
