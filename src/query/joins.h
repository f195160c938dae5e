// Joins in the FROM clause.
#pragma once

#include "base/value.h"

namespace qvr::query {

// The joins of a flat list of (field, field, letter) over a comma-separated list of tables: "I" inner, "L" left, "R"
// right, "A" a further equality on the join just written. Tables that no relation names are omitted. Throws for a list
// that is not whole triples or has an element that does not convert to text.
Text ConstruirJoins(TextView TablasFROM, const Value& RelacionTablas);

// The item of the table list that a field's qualifier names, by table name or alias; the qualifier itself if the list
// has none, empty for an unqualified field.
TextView TablaDeCampo(TextView TablasFROM, TextView field);

TextView PalabraJoin(TextView letter);

}  // namespace qvr::query
