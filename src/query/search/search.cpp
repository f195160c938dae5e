#include "query/search/search.h"

#include "query/search/condition.h"
#include "query/search/criterion.h"
#include "query/search/parser.h"

namespace qvr::query {

std::optional<Interpretation> interpret_search(Engine engine, const SearchColumn& column, TextView search,
                                               TextView label) {
  const auto type = search_type(column.type);
  if (!type || !pick(engine, {})) return std::nullopt;
  const auto understood = parse_search(normalised_search(search), *type, engine);
  if (!understood) return std::nullopt;
  return Interpretation{search_condition(engine, *type, column.expression, *understood),
                        search_criterion(label, *understood)};
}

}  // namespace qvr::query
