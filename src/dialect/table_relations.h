// Joins as conditions of the WHERE clause.
#pragma once

#include "base/engine.h"
#include "base/value.h"

namespace qvr::dialect {

// The condition for triples of (first column, second column, relation code): "I" inner, "L" left outer, "R" right
// outer, and for Oracle "A" as another spelling of inner. Empty for what is no array and for an unknown engine; a
// message box and empty for Jet and for an unknown code. Throws CallerFailure 5 for an array without elements and 9 for
// one that is not whole triples; RuntimeFailure 13 or 94 for an element that does not convert to text.
Text CondicionWhereRelacionTablas(Engine engine, const Value& triples);

}  // namespace qvr::dialect
