// Text protections for what surrounds one: cheap, and without the integrity of the library's own, so that the check
// line has to do its work.
#pragma once

#include "services/text_protection.h"

namespace qvr::tests {

// Each unit moved by an amount that depends on the key, written as four digits of two alphabets of sixteen in turn.
class CheapProtection final : public services::TextProtection {
 public:
  static constexpr TextView kLower = u"abcdefghijklmnop", kUpper = u"ABCDEFGHIJKLMNOP";

  explicit CheapProtection(TextView even = kLower, TextView odd = kLower) : alphabets_{even, odd} {}
  Text Cifrar(TextView Clave, TextView Texto) override;
  Text Descifrar(TextView Clave, TextView Texto) override;

 private:
  TextView alphabets_[2];
};

// A protection whose n-th call of all, counted from 1, fails.
class FailingProtection final : public services::TextProtection {
 public:
  FailingProtection(int failing_call, int& calls) : failing_call_(failing_call), calls_(calls) {}
  Text Cifrar(TextView Clave, TextView Texto) override;
  Text Descifrar(TextView Clave, TextView Texto) override;

 private:
  void count();

  CheapProtection inner_;
  int failing_call_;
  int& calls_;
};

// What a protection from elsewhere may write: Latin letters beyond ASCII, both cases.
class LatinProtection final : public services::TextProtection {
 public:
  Text Cifrar(TextView Clave, TextView Texto) override;
  Text Descifrar(TextView Clave, TextView Texto) override;

 private:
  CheapProtection inner_;
};

}  // namespace qvr::tests
