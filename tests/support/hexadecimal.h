// Bytes from hexadecimal digits, as published figures are printed; blanks between them do not count.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qvr::tests {

inline std::vector<std::uint8_t> from_hexadecimal(std::string_view digits) {
  std::vector<std::uint8_t> bytes;
  std::string pair;
  for (char digit : digits) {
    if (digit == ' ') continue;
    pair.push_back(digit);
    if (pair.size() < 2) continue;
    bytes.push_back(static_cast<std::uint8_t>(std::stoul(pair, nullptr, 16)));
    pair.clear();
  }
  return bytes;
}

}  // namespace qvr::tests
