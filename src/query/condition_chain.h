// Conditions added to a clause: parenthesised, joined by " and ", none of them twice.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "base/text.h"

namespace qvr::query {

class ConditionChain {
 public:
  const Text& text() const { return text_; }
  void clear() noexcept;
  void assign(Text text) noexcept;

  // Appends the condition in parentheses; false when it is blank or the text holds it, so parenthesised, already (in
  // any case). Throws without having changed anything.
  bool add(TextView condition);

 private:
  bool holds(TextView parenthesised);
  void catch_up();
  void forget_index() noexcept;

  struct Opening {
    std::size_t position;
    std::uint64_t hash_before, inverse_power;
  };

  Text text_;
  // Where each parenthesised piece of the text begins, by its hash: whatever the text's length, a condition is found at
  // once. Covers the first `indexed_` units; short texts are simply searched.
  std::unordered_map<std::uint64_t, std::size_t> pieces_;
  std::vector<Opening> open_;
  std::size_t indexed_ = 0;
  std::uint64_t hash_ = 0, power_ = 1, inverse_power_ = 1;
};

}  // namespace qvr::query
