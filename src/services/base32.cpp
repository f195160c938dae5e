#include "services/base32.h"

namespace qvr::services {

void append_base32(Text& text, Bytes bytes) {
  text.reserve(text.size() + (bytes.size() * 8 + 4) / 5);
  std::uint32_t pending = 0;
  int bits = 0;
  const auto put = [&text](std::uint32_t digit) { text.push_back(u"abcdefghijklmnopqrstuvwxyz234567"[digit & 31]); };
  for (std::uint8_t byte : bytes) {
    pending = pending << 8 | byte;
    for (bits += 8; bits >= 5; bits -= 5) put(pending >> (bits - 5));
  }
  if (bits > 0) put(pending << (5 - bits));
}

std::optional<std::vector<std::uint8_t>> from_base32(TextView text) {
  std::vector<std::uint8_t> bytes;
  bytes.reserve(text.size() * 5 / 8);
  std::uint32_t pending = 0;
  int bits = 0;
  for (char16_t unit : text) {
    std::uint32_t digit;
    if (unit >= u'a' && unit <= u'z') {
      digit = unit - std::uint32_t{u'a'};
    } else if (unit >= u'2' && unit <= u'7') {
      digit = unit - std::uint32_t{u'2'} + 26;
    } else {
      return std::nullopt;
    }
    pending = pending << 5 | digit;
    bits += 5;
    if (bits >= 8) {
      bits -= 8;
      bytes.push_back(static_cast<std::uint8_t>(pending >> bits));
    }
  }
  // A superfluous digit or non-zero padding bits: not the canonical encoding of these bytes.
  if (bits >= 5 || (pending & ((1u << bits) - 1)) != 0) return std::nullopt;
  return bytes;
}

}  // namespace qvr::services
