// What a user typed into the search box of a column, as a condition and in readable words.
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

// Nothing for a text that is no search for such a column. `label` begins the criterion.
std::optional<Interpretation> interpret_search(Engine engine, const SearchColumn& column, TextView search,
                                               TextView label);

}  // namespace qvr::query
