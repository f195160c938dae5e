#include "support/text_protections.h"

#include "base/failure.h"

namespace qvr::tests {
namespace {

char16_t shift_for(TextView key) {
  std::uint32_t sum = 4711;
  for (char16_t unit : key) sum = sum * 31 + unit;
  return static_cast<char16_t>(sum & 0xFFFF);
}

[[noreturn]] void refuse() { throw RuntimeFailure(failure_number::kInvalidArgument); }

Text moved(TextView text, int by) {
  Text result(text);
  for (char16_t& unit : result) unit = static_cast<char16_t>(unit + by);
  return result;
}

constexpr int kLatin = 0xE0 - u'a';  // "abc..." to the letters from 0xE0 on

}  // namespace

Text CheapProtection::Cifrar(TextView Clave, TextView Texto) {
  const char16_t shift = shift_for(Clave);
  Text written(1, u'x');  // an empty text is written, too
  for (char16_t unit : Texto) {
    const unsigned scrambled = static_cast<char16_t>(unit + shift);
    for (unsigned digit = 0; digit < 4; ++digit) {
      written.push_back(alphabets_[digit % 2][scrambled >> (12 - 4 * digit) & 15]);
    }
  }
  return written;
}

Text CheapProtection::Descifrar(TextView Clave, TextView Texto) {
  if (!Texto.starts_with(u'x') || Texto.size() % 4 != 1) refuse();
  const char16_t shift = shift_for(Clave);
  Text text;
  for (std::size_t at = 1; at < Texto.size(); at += 4) {
    std::size_t scrambled = 0;
    for (unsigned digit = 0; digit < 4; ++digit) {
      const std::size_t value = alphabets_[digit % 2].find(Texto[at + digit]);
      if (value == TextView::npos) refuse();
      scrambled = scrambled << 4 | value;
    }
    text.push_back(static_cast<char16_t>(scrambled - shift));
  }
  return text;
}

Text FailingProtection::Cifrar(TextView Clave, TextView Texto) {
  count();
  return inner_.Cifrar(Clave, Texto);
}

Text FailingProtection::Descifrar(TextView Clave, TextView Texto) {
  count();
  return inner_.Descifrar(Clave, Texto);
}

void FailingProtection::count() {
  if (++calls_ == failing_call_) throw RuntimeFailure(failure_number::kCannotCreateObject);
}

Text LatinProtection::Cifrar(TextView Clave, TextView Texto) { return moved(inner_.Cifrar(Clave, Texto), kLatin); }

Text LatinProtection::Descifrar(TextView Clave, TextView Texto) {
  return inner_.Descifrar(Clave, moved(Texto, -kLatin));
}

}  // namespace qvr::tests
