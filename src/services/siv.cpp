#include "services/siv.h"

#include <algorithm>

#include "base/failure.h"

namespace qvr::services {
namespace {

constexpr std::size_t kBlock = 16;

// Multiplication by x in GF(2^128).
Block doubled(const Block& block) {
  Block result;
  for (std::size_t i = 0; i < kBlock; ++i) {
    const int next = i + 1 < kBlock ? block[i + 1] >> 7 : 0;
    result[i] = static_cast<std::uint8_t>(block[i] << 1 | next);
  }
  if (block[0] & 0x80) result[kBlock - 1] ^= 0x87;
  return result;
}

void xor_into(MutableBytes target, Bytes other) {
  for (std::size_t i = 0; i < other.size(); ++i) target[i] ^= other[i];
}

void increment(Block& counter) {
  for (std::size_t i = kBlock; i-- > 0;) {
    if (++counter[i] != 0) return;
  }
}

// Compares in constant time.
bool equal_blocks(Bytes a, Bytes b) {
  std::uint8_t difference = 0;
  for (std::size_t i = 0; i < kBlock; ++i) difference = static_cast<std::uint8_t>(difference | (a[i] ^ b[i]));
  return difference == 0;
}

}  // namespace

Siv::Siv(Cryptography& cryptography, Bytes key)
    : authentication_(cryptography.aes(key.first(key.size() / 2))),
      encryption_(cryptography.aes(key.subspan(key.size() / 2))) {
  Block zero{};
  authentication_->encrypt(zero);
  subkey_whole_ = doubled(zero);
  subkey_partial_ = doubled(subkey_whole_);
  of_zero_ = cmac(Block{});
}

// AES-CMAC of the message after xoring `into_last` over its last 16 bytes (xorend in RFC 5297, S2V).
Block Siv::cmac(Bytes message, const Block* into_last) {
  const bool whole = !message.empty() && message.size() % kBlock == 0;
  const std::size_t blocks = std::max<std::size_t>(1, (message.size() + kBlock - 1) / kBlock);
  Block state{};
  for (std::size_t index = 0; index < blocks; ++index) {
    const std::size_t start = index * kBlock;
    const Bytes part = message.subspan(start, std::min(kBlock, message.size() - start));
    Block block{};
    std::ranges::copy(part, block.begin());
    if (into_last != nullptr) {
      for (std::size_t i = 0; i < part.size(); ++i) {
        if (start + i + kBlock >= message.size()) block[i] ^= (*into_last)[start + i + kBlock - message.size()];
      }
    }
    if (index + 1 == blocks) {
      if (!whole) block[part.size()] = 0x80;
      xor_into(block, whole ? subkey_whole_ : subkey_partial_);
    }
    xor_into(state, block);
    authentication_->encrypt(state);
  }
  return state;
}

Block Siv::s2v(std::initializer_list<Bytes> associated, Bytes plaintext) {
  Block sum = of_zero_;
  for (Bytes part : associated) {
    sum = doubled(sum);
    xor_into(sum, cmac(part));
  }
  if (plaintext.size() >= kBlock) return cmac(plaintext, &sum);
  sum = doubled(sum);
  xor_into(sum, plaintext);
  sum[plaintext.size()] ^= 0x80;
  return cmac(sum);
}

void Siv::apply_keystream(Block counter, MutableBytes text) {
  counter[8] &= 0x7F;  // RFC 5297 clears bits 31 and 63 of the counter
  counter[12] &= 0x7F;
  constexpr std::size_t kAtOnce = 256;
  std::array<std::uint8_t, kAtOnce * kBlock> stream;
  for (std::size_t start = 0; start < text.size(); start += stream.size()) {
    const MutableBytes part = text.subspan(start, std::min(stream.size(), text.size() - start));
    const std::size_t blocks = (part.size() + kBlock - 1) / kBlock;
    for (std::size_t i = 0; i < blocks; ++i) {
      std::ranges::copy(counter, stream.begin() + static_cast<std::ptrdiff_t>(i * kBlock));
      increment(counter);
    }
    encryption_->encrypt(MutableBytes(stream).first(blocks * kBlock));
    xor_into(part, Bytes(stream).first(part.size()));
  }
}

std::vector<std::uint8_t> Siv::seal(std::initializer_list<Bytes> associated, Bytes plaintext) {
  const Block vector = s2v(associated, plaintext);
  std::vector<std::uint8_t> sealed(kBlock + plaintext.size());
  std::ranges::copy(vector, sealed.begin());
  std::ranges::copy(plaintext, sealed.begin() + kBlock);
  apply_keystream(vector, MutableBytes(sealed).subspan(kBlock));
  return sealed;
}

std::optional<MutableBytes> Siv::open(std::initializer_list<Bytes> associated, MutableBytes sealed) {
  if (sealed.size() < kBlock) return std::nullopt;
  Block vector;
  std::ranges::copy(sealed.first(kBlock), vector.begin());
  const MutableBytes text = sealed.subspan(kBlock);
  apply_keystream(vector, text);
  if (!equal_blocks(s2v(associated, text), vector)) return std::nullopt;
  return text;
}

}  // namespace qvr::services
