#include "dialect/like_pieces.h"

#include "base/failure.h"

namespace qvr::tests {

// The prefixes of the text that the pieces so far match (dynamic programming).
bool matches(const Pieces& pieces, TextView text) {
  std::vector<bool> reached(text.size() + 1);
  reached[0] = true;
  for (const Piece& piece : pieces) {
    std::vector<bool> next(text.size() + 1);
    for (std::size_t i = 0; i <= text.size(); ++i) {
      if (piece.wild == Wild::Any) {
        next[i] = reached[i] || (i > 0 && next[i - 1]);
      } else if (i > 0 && reached[i - 1]) {
        next[i] = piece.wild == Wild::One || piece.unit == text[i - 1];
      }
    }
    reached = std::move(next);
  }
  return reached[text.size()];
}

Pieces meant_by(TextView text, bool leading, bool trailing) {
  while (text.starts_with(u' ')) text.remove_prefix(1);
  while (text.ends_with(u' ')) text.remove_suffix(1);
  Pieces pieces;
  if (leading) pieces.push_back({Wild::Any, u'*'});
  for (const char16_t unit : text) {
    pieces.push_back({unit == u'*' ? Wild::Any : unit == u'?' ? Wild::One : Wild::Self, unit});
  }
  if (trailing) pieces.push_back({Wild::Any, u'*'});
  return pieces;
}

Pieces read_by_like(TextView pattern, TextView escape) {
  Pieces pieces;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    if (!escape.empty() && pattern[at] == escape[0]) {
      if (++at == pattern.size()) throw RuntimeFailure(failure_number::kInvalidArgument);
      pieces.push_back({Wild::Self, pattern[at]});
    } else {
      const char16_t unit = pattern[at];
      pieces.push_back({unit == u'%' ? Wild::Any : unit == u'_' ? Wild::One : Wild::Self, unit});
    }
  }
  return pieces;
}

}  // namespace qvr::tests
