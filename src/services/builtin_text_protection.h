// The library's own text protection: AES-256-SIV under a key derived from the identification.
#pragma once

#include <memory>

#include "services/siv.h"
#include "services/text_protection.h"

namespace qvr::services {

// A protected text is one scheme digit, then Base32 of the sealed UTF-8, padded to a multiple of 32 bytes to hide the
// length of passwords. Deterministic: the check line of the ".cfp" file needs that.
class BuiltinTextProtection : public TextProtection {
 public:
  explicit BuiltinTextProtection(Cryptography& cryptography) : cryptography_(&cryptography) {}
  ~BuiltinTextProtection() override;

  Text Cifrar(TextView Clave, TextView Texto) override;
  // Throws failure 5 for anything that `Cifrar` did not write with this key.
  Text Descifrar(TextView Clave, TextView Texto) override;

 private:
  Siv& cipher_for(TextView key);

  Cryptography* cryptography_;
  // Cached: key derivation is slow on purpose, and loading a file needs the same key eleven times.
  Text derived_for_;
  std::unique_ptr<Siv> cipher_;
};

}  // namespace qvr::services
