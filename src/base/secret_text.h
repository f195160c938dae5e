// A text that is wiped before its memory is freed, for keys and passwords.
#pragma once

#include <utility>

#include "base/text.h"

namespace qvr {

class SecretText {
 public:
  // Moving a short text (small-string optimisation) copies it: wipe the source.
  explicit SecretText(Text&& text) noexcept : text_(std::move(text)) { wipe(text); }
  SecretText(SecretText&& other) noexcept : SecretText(std::move(other.text_)) {}
  SecretText& operator=(SecretText&&) = delete;
  ~SecretText() { wipe(text_); }

  operator TextView() const noexcept { return text_; }  // implicit, to be read like a text

 private:
  Text text_;
};

}  // namespace qvr
