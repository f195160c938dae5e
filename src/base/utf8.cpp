#include "base/utf8.h"

namespace qvr {
namespace {

constexpr bool is_high(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
constexpr bool is_low(char32_t c) { return c >= 0xDC00 && c < 0xE000; }

void append_bytes(std::string& bytes, char32_t c) {
  const auto put = [&bytes](char32_t byte) { bytes.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
  if (c < 0x80) return put(c);
  if (c < 0x800) {
    put(0xC0 | c >> 6);
  } else {
    if (c < 0x10000) {
      put(0xE0 | c >> 12);
    } else {
      put(0xF0 | c >> 18);
      put(0x80 | (c >> 12 & 0x3F));
    }
    put(0x80 | (c >> 6 & 0x3F));
  }
  put(0x80 | (c & 0x3F));
}

// How many bytes follow a first byte that is not ASCII, and the least code point that needs that many.
struct Lead {
  int following;
  char32_t bits;
  char32_t least;
};

std::optional<Lead> read_lead(unsigned char byte) {
  if (byte >= 0xC2 && byte < 0xE0) return Lead{1, byte & 0x1Fu, 0x80};
  if (byte >= 0xE0 && byte < 0xF0) return Lead{2, byte & 0x0Fu, 0x800};
  if (byte >= 0xF0 && byte < 0xF5) return Lead{3, byte & 0x07u, 0x10000};
  return std::nullopt;
}

// Behind the last one written.
char16_t* put_units(char16_t* at, char32_t c) {
  if (c < 0x10000) {
    *at++ = static_cast<char16_t>(c);
  } else {
    *at++ = static_cast<char16_t>(0xD7C0 + (c >> 10));
    *at++ = static_cast<char16_t>(0xDC00 | (c & 0x3FF));
  }
  return at;
}

}  // namespace

std::string to_utf8(TextView text) {
  std::string bytes;
  std::size_t most = text.size();
  for (const char16_t unit : text) most += unit < 0x80 ? 0u : unit < 0x800 ? 1u : 2u;
  bytes.reserve(most);  // reserved at once: reallocation would leave copies behind, and the text may be secret
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (is_high(c) && i + 1 < text.size() && is_low(text[i + 1])) {
      c = 0x10000 + ((c & 0x3FF) << 10) + (text[++i] & 0x3FFu);
    }
    append_bytes(bytes, c);
  }
  return bytes;
}

std::optional<Text> from_utf8(std::string_view bytes) {
  // Counted first: some scripts need three bytes for each unit.
  std::size_t units = 0;
  for (const char each : bytes) {
    const auto byte = static_cast<unsigned char>(each);
    units += (byte & 0xC0) == 0x80 ? 0u : byte < 0xF0 ? 1u : 2u;
  }
  Text text(units, u'\0');
  char16_t* end = text.data();
  for (std::size_t i = 0; i < bytes.size();) {
    const auto first = static_cast<unsigned char>(bytes[i++]);
    if (first < 0x80) {
      *end++ = first;
      continue;
    }
    const auto lead = read_lead(first);
    if (!lead) return std::nullopt;
    char32_t c = lead->bits;
    for (int k = 0; k < lead->following; ++k) {
      if (i == bytes.size() || (static_cast<unsigned char>(bytes[i]) & 0xC0) != 0x80) return std::nullopt;
      c = c << 6 | (static_cast<unsigned char>(bytes[i++]) & 0x3Fu);
    }
    if (c < lead->least || c > 0x10FFFF) return std::nullopt;
    // A surrogate pair as two sequences of three bytes (CESU-8) would be a second spelling of a four-byte character.
    if (is_low(c) && end != text.data() && is_high(end[-1]) && lead->following == 2) return std::nullopt;
    end = put_units(end, c);
  }
  return text;
}

}  // namespace qvr
