// LIKE patterns from the wildcards "*" and "?".
#pragma once

#include "base/engine.h"

namespace qvr::dialect {

// The quoted pattern with a trailing blank, and an ESCAPE clause where the text contains LIKE's own wildcards. The text
// is trimmed; the flags add "*" where there is none yet. Any engine number is accepted.
Text PatronLikeMotor(Engine engine, TextView text, bool leading, bool trailing);

// The first candidate for the escape character that does not occur in the text; empty when all of them do.
Text CaracterEscapeLibre(TextView text);

}  // namespace qvr::dialect
