// The library's own text protection: AES-256-SIV under a key derived from the identification.
#pragma once

#include <memory>

#include "services/siv.h"
#include "services/text_protection.h"

namespace qvr::services {

// Form of a protected text: one scheme digit, then Base32 of the sealed UTF-8, filled up in steps of 32 bytes so that
// lengths of passwords do not show. Equal texts under equal keys look equal: the file's check line needs that.
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
  // The derivation is slow on purpose, and an object asks for the same key eleven times in a row.
  Text derived_for_;
  std::unique_ptr<Siv> cipher_;
};

}  // namespace qvr::services
