// Lists of values: one-dimensional arrays with any lower bound.
#pragma once

#include "base/value.h"

namespace qvr::dialect {

// The array in the value. Throws RuntimeFailure 13 for anything else, and CallerFailure 9 for an array of no or several
// dimensions.
const Array& list_in(const Value& value);

// The element with this index, counted from the lower bound. Throws CallerFailure 9 when there is none.
const Value& element_at(const Array& list, std::int64_t index);

}  // namespace qvr::dialect
