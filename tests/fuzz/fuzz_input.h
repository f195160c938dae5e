// The bytes of an input, cut into pieces at "~", so that a corpus can be read and written by hand. A piece that is not
// there reads as an empty one; every piece is something.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "base/value.h"

namespace qvr::tests {

class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size) : rest_({reinterpret_cast<const char*>(data), size}) {}

  bool more() const { return rest_.has_value(); }
  std::string_view bytes();
  std::string_view rest();                       // all that is left, "~" included
  Text text();                                   // UTF-8, halves of pairs included; a unit from each byte of any other
  std::int32_t number();                         // its decimal digits, with the high ones lost
  std::size_t choice(std::string_view letters);  // which of them it begins with; others are spread over them
  // A letter for the type and what it holds: "t" text, "i" Long, "s" Integer, "y" Byte, "w" 64 bits, "d" Double,
  // "f" Single, "c" Currency, "m" Decimal (its three words, scale and sign behind "/"), "D" date, "b" truth, "E" error;
  // "n" Null, "M" Missing, "o" an object, "v" an array of one text, "V" of two dimensions, "e" Empty.
  Value value();

 private:
  std::optional<std::string_view> rest_;
};

// What `fuzz` promises; stops the program when it does not hold, with the texts that show why.
void require(bool condition, std::string_view what, std::initializer_list<TextView> texts = {});

// Each target defines this.
void fuzz(FuzzInput& input);

}  // namespace qvr::tests
