// A text that is overwritten before its memory is given back: keys, passwords, and what holds them.
#pragma once

#include <utility>

#include "base/text.h"

namespace qvr {

class SecretText {
 public:
  // A short text is copied by a move: what is left of it in the source goes too.
  explicit SecretText(Text&& text) noexcept : text_(std::move(text)) { wipe(text); }
  SecretText(SecretText&& other) noexcept : SecretText(std::move(other.text_)) {}
  SecretText& operator=(SecretText&&) = delete;
  ~SecretText() { wipe(text_); }

  operator TextView() const noexcept { return text_; }  // stands wherever a text is read

 private:
  Text text_;
};

}  // namespace qvr
