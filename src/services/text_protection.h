// Scrambling of texts with the caller's identification as the key.
#pragma once

#include "base/text.h"

namespace qvr::services {

// Deterministic, and inverted with the same key; what it writes has no comma, double quote or blank at its edges.
// Both operations throw when they cannot answer.
class TextProtection {
 public:
  virtual ~TextProtection() = default;
  virtual Text Cifrar(TextView Clave, TextView Texto) = 0;
  virtual Text Descifrar(TextView Clave, TextView Texto) = 0;
};

}  // namespace qvr::services
