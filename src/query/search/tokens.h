// Takes a search apart: connectors, negations, operators, ranges and the values between them.
#pragma once

#include <vector>

#include "query/search/keywords.h"
#include "query/search/operand.h"

namespace qvr::query {

enum class TokenKind { Or, And, Not, Comparison, Like, From, Dots, Operand };

// Between two connectors at most one of each other kind but Operand, in the order of the kinds; an operand may stand
// on both sides of Dots.
struct Token {
  TokenKind kind;
  Comparison comparison = {};  // of Comparison
  bool negated = false;        // Like: "not like"
  bool open = false;           // From: the range may do without a last end
  TextView text = {};          // Operand: as typed, without blanks around it; never empty
  Operand operand = {};        // Operand of a text column: the text without its quotes
};

// Replaces control characters and no-break spaces by blanks, and trims.
Text normalised_search(TextView typed);

// More than a condition can hold; what stands behind so many is not read.
inline constexpr std::size_t kMostTokens = 1000;

// Of a normalised search, which the tokens refer to. Quoted parts are never taken apart. In text columns a word
// connects only before an operator, "&" and "|" need blanks around them, and two points join only what can be the ends
// of a range.
std::vector<Token> tokens_of(TextView search, SearchType type);

}  // namespace qvr::query
