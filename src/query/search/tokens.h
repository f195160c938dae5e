// Splits a search at its connectors.
#pragma once

#include <vector>

#include "query/search/keywords.h"

namespace qvr::query {

// The trimmed text between two connectors; `starts_alternative` for the first piece and behind an "or".
struct SearchPiece {
  TextView text;
  bool starts_alternative;
};

// Quoted parts are never split. In text columns a word is a connector only before an operator, and "&" and "|" need
// blanks around them.
std::vector<SearchPiece> split_search(TextView search, SearchType type);

// The length of the comparison operator at the beginning of the text; 0 for none.
std::size_t operator_length(TextView text);

// The length of the negation ("!", or a word where words are operators) at the beginning of the text; 0 for none.
std::size_t negation_length(TextView text, SearchType type);

// The operand of the LIKE at the beginning of the text; nothing when there is none. "LIKE" in capitals always counts,
// in lower case and as a phrase only before a quote or a wildcard.
std::optional<TextView> like_operand(TextView text);

}  // namespace qvr::query
