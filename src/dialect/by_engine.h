// Texts by engine, with a message box for an unknown engine.
#pragma once

#include "base/engine.h"

namespace qvr::dialect {

// Shows the message box for an unknown engine; returns the empty text, so that callers can return it.
Text undefined_engine(Engine engine);

// The engine's piece; for an unknown engine the message box and nothing.
Text pick_or_tell(Engine engine, const ByEngine& pieces);

}  // namespace qvr::dialect
