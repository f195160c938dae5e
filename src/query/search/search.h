// The search box: what a user typed for a column, as an SQL condition and as a text for the user.
#pragma once

#include <optional>

#include "base/engine.h"

namespace qvr::query {

struct SearchColumn {
  TextView expression;
  char16_t type;  // 'T' text, 'M' memo, 'N' number, 'F' date, 'L' logical; in any case
};

struct Interpretation {
  Text condition, criterion;
};

// Nothing for a text that is not a valid search for this column type. `label` is the column's name in the criterion.
std::optional<Interpretation> interpret_search(Engine engine, const SearchColumn& column, TextView search,
                                               TextView label);

}  // namespace qvr::query
