// The engine selector and the texts that differ by engine.
#pragma once

#include <cstdint>
#include <optional>

#include "base/text.h"

namespace qvr::dialect {

// Any number can be held; each operation says itself what one that is no engine does.
using Engine = std::int32_t;
inline constexpr Engine kJet = 1, kSqlServer = 2, kOracle = 3;

// One piece of text as each engine writes it.
struct ByEngine {
  TextView jet, sql_server, oracle;
};

// The engine's piece; nothing for a number that is no engine.
std::optional<TextView> pick(const Engine& engine, const ByEngine& pieces) noexcept;

// Shows the message box for a number that is no engine; the empty text, so that a caller can return it.
Text undefined_engine(const Engine& engine);

// The engine's piece, or the message box and nothing.
Text pick_or_tell(const Engine& engine, const ByEngine& pieces);

// Shows a message box with an OK button.
void tell(TextView message);

}  // namespace qvr::dialect
