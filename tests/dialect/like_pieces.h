// Parsed patterns: "*" and "?" as the user means them, and LIKE as engines read it.
#pragma once

#include <vector>

#include "base/text.h"

namespace qvr::tests {

// One position of a pattern: a character for itself, any one, or any number of any.
enum class Wild { Self, One, Any };
struct Piece {
  Wild wild;
  char16_t unit;
};
using Pieces = std::vector<Piece>;

bool matches(const Pieces& pieces, TextView text);

// As the user means the text. Blanks at its edges are none of it.
Pieces meant_by(TextView text, bool leading, bool trailing);

// As LIKE reads the pattern: what stands behind the escape character stands for itself. Throws failure 5 for an escape
// character with nothing behind it.
Pieces read_by_like(TextView pattern, TextView escape);

}  // namespace qvr::tests
