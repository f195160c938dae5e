// Encryption of texts with the caller's identification as the key.
#pragma once

#include "base/text.h"

namespace qvr::services {

// Deterministic. The encrypted text has no comma, no double quote and no blank at its ends. Both throw on failure.
class TextProtection {
 public:
  virtual ~TextProtection() = default;
  virtual Text Cifrar(TextView Clave, TextView Texto) = 0;
  virtual Text Descifrar(TextView Clave, TextView Texto) = 0;
};

}  // namespace qvr::services
