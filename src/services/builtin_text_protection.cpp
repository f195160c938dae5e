#include "services/builtin_text_protection.h"

#include <algorithm>

#include "base/failure.h"
#include "base/utf8.h"
#include "services/base32.h"

namespace qvr::services {
namespace {

constexpr char16_t kScheme = u'1';  // not in the Base32 alphabet
constexpr std::size_t kStep = 32;
constexpr std::uint8_t kEndOfText = 0x80;
constexpr std::uint32_t kRounds = 100000;
constexpr std::size_t kKeySize = 64;
constexpr std::string_view kSalt = "QVRlib21 text protection 1";

Bytes as_bytes(std::string_view text) { return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}; }

MutableBytes as_mutable(std::string& text) { return {reinterpret_cast<std::uint8_t*>(text.data()), text.size()}; }

[[noreturn]] void not_ours() {
  throw RuntimeFailure(failure_number::kInvalidArgument,
                       u"The protected text is damaged or was written with another key");
}

// Removes the padding: the end mark and the zeros behind it.
std::optional<Bytes> unpadded(Bytes padded) {
  std::size_t size = padded.size();
  while (size > 0 && padded[size - 1] == 0) --size;
  if (padded.size() % kStep != 0 || size == 0 || padded[size - 1] != kEndOfText) return std::nullopt;
  return padded.first(size - 1);
}

}  // namespace

BuiltinTextProtection::~BuiltinTextProtection() { wipe(derived_for_); }

Siv& BuiltinTextProtection::cipher_for(TextView key) {
  if (cipher_ && derived_for_ == key) return *cipher_;
  cipher_.reset();
  wipe(derived_for_);
  // HMAC pads its key with zeros: the delimiters keep identifications apart that differ by trailing NULs only, an empty
  // one included.
  std::string password = "<" + to_utf8(key) + ">";
  SecretBytes derived(*cryptography_, kKeySize);
  cryptography_->pbkdf2_hmac_sha256(as_bytes(password), as_bytes(kSalt), kRounds, derived.span());
  cryptography_->wipe(as_mutable(password));
  // In this order: if the allocation throws, the cache must not hold a cipher under the wrong identification.
  derived_for_ = key;
  cipher_ = std::make_unique<Siv>(*cryptography_, derived.span());
  return *cipher_;
}

Text BuiltinTextProtection::Cifrar(TextView Clave, TextView Texto) {
  std::string plain = to_utf8(Texto);
  SecretBytes padded(*cryptography_, (plain.size() / kStep + 1) * kStep);
  std::ranges::copy(as_bytes(plain), padded.span().begin());
  padded.span()[plain.size()] = kEndOfText;
  cryptography_->wipe(as_mutable(plain));
  Text written(1, kScheme);
  append_base32(written, cipher_for(Clave).seal({}, padded.span()));
  return written;
}

Text BuiltinTextProtection::Descifrar(TextView Clave, TextView Texto) {
  if (!Texto.starts_with(kScheme)) not_ours();
  auto sealed = from_base32(Texto.substr(1));
  if (!sealed) not_ours();
  const auto padded = cipher_for(Clave).open({}, *sealed);
  const auto plain = padded ? unpadded(*padded) : std::nullopt;
  auto text = plain ? from_utf8({reinterpret_cast<const char*>(plain->data()), plain->size()}) : std::nullopt;
  cryptography_->wipe(*sealed);
  if (!text) not_ours();
  return std::move(*text);
}

}  // namespace qvr::services
