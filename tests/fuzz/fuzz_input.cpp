#include "fuzz/fuzz_input.h"

#include <cstdio>
#include <cstdlib>

#include "base/utf8.h"

namespace qvr::tests {
namespace {

Text text_in(std::string_view bytes) {
  if (auto text = from_utf8(bytes)) return std::move(*text);
  Text units;
  for (const char byte : bytes) units.push_back(static_cast<unsigned char>(byte));
  return units;
}

std::int64_t integer_in(std::string_view digits) {
  std::uint64_t number = 0;
  for (const char digit : digits) {
    if (digit >= '0' && digit <= '9') number = number * 10 + static_cast<std::uint64_t>(digit - '0');
  }
  return static_cast<std::int64_t>(digits.starts_with('-') ? 0 - number : number);
}

// Also "inf", "nan" and hexadecimal digits, for any bits.
double real_in(std::string_view digits) { return std::strtod(std::string(digits).c_str(), nullptr); }

Decimal decimal_in(std::string_view words) {
  std::uint32_t parts[5] = {};
  for (std::uint32_t& part : parts) {
    const std::size_t end = words.find('/');
    part = static_cast<std::uint32_t>(integer_in(words.substr(0, end)));
    words.remove_prefix(end == words.npos ? words.size() : end + 1);
  }
  return {parts[0], parts[1], parts[2], static_cast<std::uint8_t>(parts[3] % 29), parts[4] != 0};
}

}  // namespace

std::string_view FuzzInput::bytes() {
  if (!rest_) return {};
  const std::size_t end = rest_->find('~');
  const std::string_view piece = rest_->substr(0, end);
  if (end == rest_->npos) {
    rest_.reset();
  } else {
    rest_->remove_prefix(end + 1);
  }
  return piece;
}

std::string_view FuzzInput::rest() {
  const std::string_view all = rest_.value_or(std::string_view());
  rest_.reset();
  return all;
}

Text FuzzInput::text() { return text_in(bytes()); }

std::int32_t FuzzInput::number() { return static_cast<std::int32_t>(integer_in(bytes())); }

std::size_t FuzzInput::choice(std::string_view letters) {
  const std::string_view piece = bytes();
  if (piece.empty()) return 0;
  const std::size_t at = letters.find(piece[0]);
  return at == letters.npos ? static_cast<unsigned char>(piece[0]) % letters.size() : at;
}

Value FuzzInput::value() {
  const std::string_view piece = bytes(), held = piece.substr(piece.empty() ? 0 : 1);
  switch (piece.empty() ? 'e' : piece[0]) {
    case 't': return text_in(held);
    case 'i': return static_cast<std::int32_t>(integer_in(held));
    case 's': return static_cast<std::int16_t>(integer_in(held));
    case 'y': return static_cast<std::uint8_t>(integer_in(held));
    case 'w': return integer_in(held);
    case 'd': return real_in(held);
    case 'f': return std::strtof(std::string(held).c_str(), nullptr);
    case 'c': return Currency{integer_in(held)};
    case 'm': return decimal_in(held);
    case 'D': return Date{real_in(held)};
    case 'b': return integer_in(held) != 0;
    case 'E': return ErrorValue{static_cast<std::int32_t>(integer_in(held))};
    case 'n': return Null{};
    case 'M': return Missing{};
    case 'o': return ObjectRef(std::make_shared<Object>());
    case 'v': return Array{{Value(text_in(held))}, 0, 1};
    case 'V': return Array{{Value(text_in(held))}, 0, 2};
    case 'e': return Empty{};
    default: return text_in(piece);
  }
}

void require(bool condition, std::string_view what, std::initializer_list<TextView> texts) {
  if (condition) return;
  std::fprintf(stderr, "not so: %.*s\n", static_cast<int>(what.size()), what.data());
  for (const TextView text : texts) std::fprintf(stderr, "  |%s|\n", to_utf8(text).c_str());
  std::abort();
}

}  // namespace qvr::tests

// libFuzzer calls this with every input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  qvr::tests::FuzzInput input(data, size);
  qvr::tests::fuzz(input);
  return 0;
}
