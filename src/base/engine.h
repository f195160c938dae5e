// The database engines, and texts that differ by engine.
#pragma once

#include <cstdint>
#include <optional>

#include "base/text.h"

namespace qvr {

// Callers may pass any number; each operation says what it does with an unknown engine.
enum class Engine : std::int32_t { None = 0, Jet = 1, SqlServer = 2, Oracle = 3 };

constexpr std::int32_t number_of(Engine engine) { return static_cast<std::int32_t>(engine); }

// A piece of SQL as each engine writes it.
struct ByEngine {
  TextView jet, sql_server, oracle;
};

// The piece for this engine; nothing for an unknown engine.
constexpr std::optional<TextView> pick(Engine engine, const ByEngine& pieces) noexcept {
  switch (engine) {
    case Engine::Jet: return pieces.jet;
    case Engine::SqlServer: return pieces.sql_server;
    case Engine::Oracle: return pieces.oracle;
    default: return std::nullopt;
  }
}

}  // namespace qvr
