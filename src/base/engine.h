// The database engines, and texts that differ by engine.
#pragma once

#include <cstdint>
#include <optional>

#include "base/text.h"

namespace qvr {

// Any number can be held, as callers give it; each operation says itself what one that is no engine does.
enum class Engine : std::int32_t { None = 0, Jet = 1, SqlServer = 2, Oracle = 3 };

constexpr std::int32_t number_of(Engine engine) { return static_cast<std::int32_t>(engine); }

// One piece of text as each engine writes it.
struct ByEngine {
  TextView jet, sql_server, oracle;
};

// The engine's piece; nothing for a number that is no engine.
constexpr std::optional<TextView> pick(Engine engine, const ByEngine& pieces) noexcept {
  switch (engine) {
    case Engine::Jet: return pieces.jet;
    case Engine::SqlServer: return pieces.sql_server;
    case Engine::Oracle: return pieces.oracle;
    default: return std::nullopt;
  }
}

}  // namespace qvr
