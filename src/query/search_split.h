// A search taken apart at its connectors.
#pragma once

#include <vector>

#include "query/search_words.h"

namespace qvr::query {

// What stands between two connectors, trimmed; `starts_alternative` where an "or" stands before it (or nothing).
struct SearchPiece {
  TextView text;
  bool starts_alternative;
};

// Quoted parts are never taken apart. In texts no word connects unless an operator follows it, and "&" and "|" need
// blanks around them.
std::vector<SearchPiece> split_search(TextView search, SearchType type);

// The length of the comparison operator that the text begins with; 0 for none.
std::size_t operator_length(TextView text);

// The length of the "!" that the text begins with and that negates what is behind it, or of the word where words do; 0
// for none.
std::size_t negation_length(TextView text, SearchType type);

// The operand of a LIKE that the text begins with; nothing when it begins with none. The word in capitals always is
// one, in other letters and as a phrase only before a quote or a wildcard.
std::optional<TextView> like_operand(TextView text);

}  // namespace qvr::query
