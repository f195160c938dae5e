// Random values for SQL injection, with the tokens that an engine must read.
#pragma once

#include <array>
#include <random>

#include "base/value.h"
#include "dialect/sql_tokens.h"

namespace qvr::tests {

struct Sample {
  Value value;
  std::array<Tokens, 3> tokens;  // of Jet, SQL Server and Oracle

  const Tokens& for_engine(Engine engine) const { return tokens[static_cast<std::size_t>(engine) - 1]; }
};

// The same values from the same seed, on every platform.
class HostileValues {
 public:
  explicit HostileValues(std::uint64_t seed) : random_(seed) {}

  Sample next();
  Text text();
  std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }

 private:
  Sample text_sample();
  Sample date_sample();

  std::mt19937_64 random_;
};

}  // namespace qvr::tests
