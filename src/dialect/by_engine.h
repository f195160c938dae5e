// Texts that differ by engine, where a number that is no engine shows a message box.
#pragma once

#include "base/engine.h"

namespace qvr::dialect {

// Shows the message box for a number that is no engine; the empty text, so that a caller can return it.
Text undefined_engine(Engine engine);

// The engine's piece, or the message box and nothing.
Text pick_or_tell(Engine engine, const ByEngine& pieces);

}  // namespace qvr::dialect
