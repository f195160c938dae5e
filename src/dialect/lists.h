// Lists of values as callers pass them: arrays of one dimension with any lower bound.
#pragma once

#include "base/value.h"

namespace qvr::dialect {

// The array in the value. Throws failure 13 for anything else, and 9, meant for the caller where one is told, for an
// array of no or several dimensions.
const Array& list_in(const Value& value);

// The element with this index, counted from the array's own lower bound. Throws failure 9, as above, when there is
// none.
const Value& element_at(const Array& list, std::int64_t index);

}  // namespace qvr::dialect
