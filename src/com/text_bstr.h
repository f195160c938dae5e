// Conversion between Text and BSTR. A null BSTR is an empty text.
#pragma once

#include <utility>

#include "base/text.h"
#include "com/com.h"

namespace qvr::com {

Text text_from(BSTR string);

// A new BSTR, also for an empty text; null only when out of memory.
BSTR new_bstr(TextView text) noexcept;

// Wipes and frees the string, as it may contain a password.
void free_wiped(BSTR string) noexcept;

class OwnedBstr {
 public:
  OwnedBstr() = default;
  explicit OwnedBstr(TextView text) noexcept : string_(new_bstr(text)) {}
  ~OwnedBstr() { free_wiped(string_); }
  OwnedBstr(OwnedBstr&& other) noexcept : string_(std::exchange(other.string_, nullptr)) {}
  OwnedBstr& operator=(OwnedBstr&& other) noexcept {
    std::swap(string_, other.string_);
    return *this;
  }

  BSTR get() const { return string_; }
  BSTR* out() { return &string_; }
  BSTR release() { return std::exchange(string_, nullptr); }
  Text text() const { return text_from(string_); }

 private:
  BSTR string_ = nullptr;
};

}  // namespace qvr::com
