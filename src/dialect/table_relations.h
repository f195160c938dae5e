// Joins written as conditions of the WHERE clause.
#pragma once

#include "base/engine.h"
#include "base/value.h"

namespace qvr::dialect {

// The condition for triples of (first column, second column, relation code): "I" inner, "L" left outer, "R" right
// outer, and for Oracle "A" as another spelling of inner. Empty for what is no array and for a number that is no
// engine; a message box and empty for Jet and for an unknown code. Throws failure 5 for a list without elements and 9
// for one that is not whole triples, both meant for the caller; 13 or 94 for an element that has no text.
Text CondicionWhereRelacionTablas(Engine engine, const Value& triples);

}  // namespace qvr::dialect
