// Joins written in the FROM clause.
#pragma once

#include "base/value.h"

namespace qvr::query {

// The joins of a flat list of (field, field, letter) over a comma-separated list of tables: "I" inner, "L" left, "R"
// right, "A" a further equality on the join just written. Tables that no relation names are left out. Throws for a list
// that is not whole triples or holds what has no text.
Text ConstruirJoins(TextView TablasFROM, const Value& RelacionTablas);

// The item of the table list that a field is qualified with, by its name or its alias; the qualifier itself when the
// list has none, empty for a field without one.
TextView TablaDeCampo(TextView TablasFROM, TextView field);

TextView PalabraJoin(TextView letter);

}  // namespace qvr::query
