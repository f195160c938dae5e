#include "query/search/search.h"

#include "query/search/condition.h"
#include "query/search/criterion.h"
#include "query/search/grammar.h"

namespace qvr::query {

std::optional<Interpretation> interpret_search(Engine engine, const SearchColumn& column, TextView search,
                                               TextView label) {
  const auto type = search_type(column.type);
  if (!type || !pick(engine, {})) return std::nullopt;
  const Text typed = normalised_search(search);
  const auto understood = parse_search(tokens_of(typed, *type), *type, engine);
  if (!understood) return std::nullopt;
  auto condition = search_condition(engine, *type, column.expression, *understood);
  if (!condition) return std::nullopt;
  return Interpretation{std::move(*condition), search_criterion(label, *understood)};
}

}  // namespace qvr::query
