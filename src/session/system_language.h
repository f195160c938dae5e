// Maps Windows language identifiers (LANGID) to the library's language numbers.
#pragma once

#include <cstdint>

namespace qvr {

// The language number; `needs_availability_check` where the catalogue may lack it, so that the nearest one counts.
struct SystemLanguage {
  std::int32_t number;
  bool needs_availability_check;
};

// The language that an identifier in Windows' numbering leads to; English for an unknown one.
SystemLanguage system_language(std::uint16_t identifier);

}  // namespace qvr
