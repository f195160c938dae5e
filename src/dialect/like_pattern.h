// Patterns for LIKE from what a user writes with "*" and "?".
#pragma once

#include "base/engine.h"

namespace qvr::dialect {

// The quoted pattern with a trailing blank, and an ESCAPE clause where the text has characters that LIKE would take for
// wildcards. Blanks at the text's edges are dropped; the flags add "*" where there is none yet. No engine is unknown.
Text PatronLikeMotor(Engine engine, TextView text, bool leading, bool trailing);

// The first of the candidates for an escape character that the text does not hold; empty when it holds them all.
Text CaracterEscapeLibre(TextView text);

}  // namespace qvr::dialect
