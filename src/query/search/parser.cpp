#include "query/search/parser.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "query/search/grammar.h"
#include "query/search/tokens.h"

namespace qvr::query {
namespace {

// Limit: negations can multiply the number of alternatives.
constexpr std::size_t kMostAlternatives = 200;

// Conjunction in disjunctive form: each alternative of one with each of the other. False when there are too many.
bool add(Alternatives& all, Alternatives next) {
  if (all.empty()) {
    all = std::move(next);
    return true;
  }
  if (next.size() == 1) {
    for (Alternative& alternative : all) alternative.insert(alternative.end(), next[0].begin(), next[0].end());
    return true;
  }
  if (all.size() * next.size() > kMostAlternatives) return false;
  Alternatives product;
  for (const Alternative& first : all) {
    for (const Alternative& second : next) {
      product.push_back(first);
      product.back().insert(product.back().end(), second.begin(), second.end());
    }
  }
  all = std::move(product);
  return true;
}

// One alternative: the pieces up to the next "or".
std::optional<Alternatives> parse_conjunction(std::span<const SearchPiece> pieces, const AtomParser& parser) {
  Alternatives all;
  for (const SearchPiece& piece : pieces) {
    auto next = parser.parse(piece.text);
    if (!next || !add(all, std::move(*next))) return std::nullopt;
  }
  return all;
}

}  // namespace

std::optional<Alternatives> parse_search(TextView normalised, SearchType type, Engine engine) {
  const std::vector<SearchPiece> pieces = split_search(normalised, type);
  const AtomParser parser(type, engine);
  Alternatives found;
  for (std::size_t from = 0; from < pieces.size();) {
    std::size_t to = from + 1;
    while (to < pieces.size() && !pieces[to].starts_alternative) ++to;
    // An empty piece behind the last ";" or between two is ignored.
    const bool nothing = to == from + 1 && pieces[from].text.empty();
    if (!nothing) {
      auto alternatives = parse_conjunction(std::span(pieces).subspan(from, to - from), parser);
      if (!alternatives) return std::nullopt;
      std::ranges::move(*alternatives, std::back_inserter(found));
    }
    from = to;
  }
  return found.empty() ? std::nullopt : std::optional(std::move(found));
}

}  // namespace qvr::query
