// Conditions added to a clause: parenthesised, joined by " and ", none of them twice.
#pragma once

#include "base/text.h"

namespace qvr::query {

class ConditionChain {
 public:
  const Text& text() const { return text_; }
  void clear() noexcept { text_.clear(); }
  void assign(Text text) noexcept { text_ = std::move(text); }

  // Appends the condition in parentheses; false when it is blank or the text holds it, so parenthesised, already (in
  // any case). Throws without having changed anything.
  bool add(TextView condition);

 private:
  Text text_;
};

}  // namespace qvr::query
