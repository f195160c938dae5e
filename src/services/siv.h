// AES-SIV (RFC 5297): deterministic authenticated encryption.
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

// Bytes that may be secret: wiped before their memory is freed.
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
  // Decrypts in place, behind the first 16 bytes of the buffer; nothing, and the buffer's content is unspecified, when
  // authentication under this key and these associated bytes fails.
  std::optional<MutableBytes> open(std::initializer_list<Bytes> associated, MutableBytes sealed);

 private:
  Block cmac(Bytes message, const Block* into_last = nullptr);
  Block s2v(std::initializer_list<Bytes> associated, Bytes plaintext);
  void apply_keystream(Block counter, MutableBytes text);

  std::unique_ptr<BlockCipher> authentication_;
  std::unique_ptr<BlockCipher> encryption_;
  Block subkey_whole_{};    // K1 of CMAC: the last block is complete
  Block subkey_partial_{};  // K2 of CMAC: the last block is padded
  Block of_zero_{};         // CMAC of a block of zeros, with which S2V begins
};

}  // namespace qvr::services
