// The conditions added to a clause: parenthesised, joined by " and ", without duplicates.
#pragma once

#include "base/text.h"

namespace qvr::query {

class ConditionChain {
 public:
  const Text& text() const { return text_; }
  void clear() noexcept { text_.clear(); }
  void assign(Text text) noexcept { text_ = std::move(text); }

  // Appends the condition in parentheses; false when it is blank or contained already, without regard to case. Strong
  // exception guarantee.
  bool add(TextView condition);

 private:
  Text text_;
};

}  // namespace qvr::query
