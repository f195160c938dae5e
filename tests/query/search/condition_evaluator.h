// Evaluates conditions on one column by the rules of each engine for LIKE, case and null.
#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "base/engine.h"

namespace qvr::tests {

// A moment is counted in seconds from the first day of 1970.
struct Moment {
  std::int64_t second;
  auto operator<=>(const Moment&) const = default;
};
std::optional<Moment> moment_in(TextView text);  // from "2011-01-05" or "2011-01-05 14:07:09" inside the text

using Cell = std::variant<std::monostate, Text, double, Moment>;  // nothing: null

// The column is called X in the condition. Nothing for what is no condition that these engines read.
std::optional<bool> selects(Engine engine, TextView condition, const Cell& cell);

// Whether it is nothing but tests of X against literals, joined and parenthesised.
bool is_condition(Engine engine, TextView condition);

// How many And and Or join its tests, and the most that an engine is sure to take; likewise its characters.
std::size_t joints(Engine engine, TextView condition);
inline constexpr std::size_t kMostJoints = 90, kMostCharacters = 30000;

}  // namespace qvr::tests
