// Lists of values as callers pass them: arrays of one dimension with any lower bound.
#pragma once

#include "frame/text.h"
#include "frame/value.h"

namespace qvr::dialect {

// The array in the value. Throws failure 13 for anything else, and 9, meant for the caller where one is told, for an
// array of no or several dimensions.
const Array& list_in(const Value& value);

// The element with this index, counted from the array's own lower bound. Throws failure 9, as above, when there is
// none.
const Value& element_at(const Array& list, std::int64_t index);

// An element that is a piece of SQL already, as text; a number has "." before its decimals in every locale, since a
// comma would part it in two. Throws as to_text does. The view is of the value where it is a text, else of `converted`.
Text sql_piece(const Value& element);
TextView sql_piece_view(const Value& element, Text& converted);

}  // namespace qvr::dialect
