// How the operating system's language identifiers map to language numbers.
#pragma once

#include <cstdint>

namespace qvr {

// What one list of identifiers leads to: the number itself, or the nearest one that a catalogue carries.
struct SystemLanguage {
  std::int32_t number;
  bool needs_availability_check;
};

// Identifier in lower-case hexadecimal without leading zeros ("c0a") to its language.
SystemLanguage system_language(std::uint16_t identifier);

}  // namespace qvr
