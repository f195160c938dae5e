// AES-SIV (RFC 5297): deterministic encryption that recognises any change of what it wrote.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <vector>

#include "platform/platform.h"

namespace qvr::services {

using Block = std::array<std::uint8_t, 16>;

// Bytes that may be secret: overwritten before their memory is given back.
class SecretBytes {
 public:
  SecretBytes(Cryptography& cryptography, std::size_t size) : cryptography_(&cryptography), bytes_(size) {}
  ~SecretBytes() { cryptography_->wipe(bytes_); }
  SecretBytes(const SecretBytes&) = delete;
  SecretBytes& operator=(const SecretBytes&) = delete;
  MutableBytes span() { return bytes_; }

 private:
  Cryptography* cryptography_;
  std::vector<std::uint8_t> bytes_;
};

class Siv {
 public:
  // The first half of the key authenticates, the second encrypts; 32, 48 or 64 bytes in all.
  Siv(Cryptography& cryptography, Bytes key);

  // The synthetic initialisation vector of 16 bytes, then as many bytes as the plaintext has.
  std::vector<std::uint8_t> seal(std::initializer_list<Bytes> associated, Bytes plaintext);
  // The plaintext, in the buffer that held the sealed bytes behind their first 16; nothing (and the buffer is of no
  // use) when they were not sealed under this key with these associated bytes.
  std::optional<MutableBytes> open(std::initializer_list<Bytes> associated, MutableBytes sealed);

 private:
  Block cmac(Bytes message, const Block* into_last = nullptr);
  Block s2v(std::initializer_list<Bytes> associated, Bytes plaintext);
  void apply_keystream(Block counter, MutableBytes text);

  std::unique_ptr<BlockCipher> authentication_;
  std::unique_ptr<BlockCipher> encryption_;
  Block subkey_whole_{};    // for a message whose last block is full
  Block subkey_partial_{};  // for one whose last block is filled up
};

}  // namespace qvr::services
