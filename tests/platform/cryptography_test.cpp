// Test vectors: FIPS 197 for AES, RFC 7914 for PBKDF2.
#include <gtest/gtest.h>

#include "base/failure.h"
#include "platform/platform.h"
#include "support/hexadecimal.h"

namespace qvr::tests {
namespace {

using Octets = std::vector<std::uint8_t>;

Cryptography& cryptography() { return system_platform().cryptography; }

Bytes as_bytes(std::string_view text) { return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}; }

TEST(Cryptography, EncryptsTheStandardsBlocks) {
  struct Row {
    std::string_view key, block;
  };
  constexpr Row kRows[] = {
      {"000102030405060708090a0b0c0d0e0f", "69c4e0d86a7b0430d8cdb78070b4c55a"},
      {"000102030405060708090a0b0c0d0e0f1011121314151617", "dda97ca4864cdfe06eaf70a0ec0d7191"},
      {"000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f", "8ea2b7ca516745bfeafc49904b496089"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.key.size() * 4);
    Octets block = from_hexadecimal("00112233445566778899aabbccddeeff");
    cryptography().aes(from_hexadecimal(row.key))->encrypt(block);
    EXPECT_EQ(block, from_hexadecimal(row.block));
  }
}

TEST(Cryptography, EncryptsEachBlockByItself) {
  const auto cipher = cryptography().aes(Octets(32, 7));
  Octets three(48, 1);
  cipher->encrypt(three);
  Octets one(16, 1);
  cipher->encrypt(one);
  for (auto block = three.begin(); block != three.end(); block += 16) EXPECT_EQ(Octets(block, block + 16), one);
}

TEST(Cryptography, RefusesKeysOfOtherSizes) {
  EXPECT_THROW(cryptography().aes(Octets()), RuntimeFailure);
  EXPECT_THROW(cryptography().aes(Octets(15)), RuntimeFailure);
}

TEST(Cryptography, DerivesTheStandardsKeys) {
  struct Row {
    std::string_view password, salt;
    std::uint32_t rounds;
    std::string_view derived;
  };
  constexpr Row kRows[] = {
      {"passwd", "salt", 1,
       "55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc"
       "49ca9cccf179b645991664b39d77ef317c71b845b1e30bd509112041d3a19783"},
      {"Password", "NaCl", 80000,
       "4ddcd8f60b98be21830cee5ef22701f9641a4418d04c0414aeff08876b34ab56"
       "a1d425a1225833549adb841b51c9b3176a272bdebba1d078478f62b397f33c8d"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.rounds);
    Octets derived(64);
    cryptography().pbkdf2_hmac_sha256(as_bytes(row.password), as_bytes(row.salt), row.rounds, derived);
    EXPECT_EQ(derived, from_hexadecimal(row.derived));
  }
}

// HMAC hashes a key that is longer than a block of its hash (64 bytes for SHA-256). Derived with Python's hashlib.
TEST(Cryptography, DerivesTheSameKeysFromLongPasswords) {
  struct Row {
    std::size_t size;
    std::string_view derived;
  };
  constexpr Row kRows[] = {
      {63,
       "9b6c90643d61042ecefa614a99a0bc11f8b27a3c622458db3eb0e85476f10095"
       "6a5ef8803992ca9eaca5a305c9da01a2134338fcd8d1320281646ec12bc2ea3e"},
      {64,
       "52a35b55f8bf76a5cd41c6ecb550403d5db0cf1f9713129b7858ed7efdda102e"
       "45d6dcfed7b2a73f6a29e39eb44c3791b868880c295e3c00388db9cfb8943306"},
      {65,
       "ae720262726b2fca085e76a3dc14048f0c078470e4df8be02ccb0faed8781973"
       "0d95706e6411b473aa9c6dc58ae292002f669173b57e0371e2a85528511e08e3"},
      {10000,
       "0a5016ea6b7bd04a1eb6046a13c03bf118b9e24235820c85f18fbad099302cae"
       "5013baa8b0c879966bbd98529557008be1da967a1813bd1d2b0e522a5c0cf417"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.size);
    std::string password;
    while (password.size() < row.size) password += "abcdefghij";
    password.resize(row.size);
    Octets derived(64);
    cryptography().pbkdf2_hmac_sha256(as_bytes(password), as_bytes("salt"), 1000, derived);
    EXPECT_EQ(derived, from_hexadecimal(row.derived));
  }
}

TEST(Cryptography, WipesEveryByte) {
  Octets secret(100, 0xAA);
  cryptography().wipe(secret);
  EXPECT_EQ(secret, Octets(100, 0));
  cryptography().wipe({});
}

}  // namespace
}  // namespace qvr::tests
