#include "services/siv.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "support/hexadecimal.h"

namespace qvr::tests {
namespace {

using services::Siv;
using Octets = std::vector<std::uint8_t>;

Siv siv_of(const Octets& key) { return Siv(system_platform().cryptography, key); }

// The two examples of RFC 5297, appendix A.
struct Example {
  const char* name;
  Octets key;
  std::vector<Octets> associated;
  Octets plaintext, sealed;
};

std::vector<Example> examples() {
  const auto hex = from_hexadecimal;
  return {
      {"A.1",
       hex("fffefdfc fbfaf9f8 f7f6f5f4 f3f2f1f0 f0f1f2f3 f4f5f6f7 f8f9fafb fcfdfeff"),
       {hex("10111213 14151617 18191a1b 1c1d1e1f 20212223 24252627")},
       hex("11223344 55667788 99aabbcc ddee"),
       hex("85632d07 c6e8f37f 950acd32 0a2ecc93 40c02b96 90c4dc04 daef7f6a fe5c")},
      {"A.2",
       hex("7f7e7d7c 7b7a7978 77767574 73727170 40414243 44454647 48494a4b 4c4d4e4f"),
       {hex("00112233 44556677 8899aabb ccddeeff deaddada deaddada ffeeddcc bbaa9988 77665544 33221100"),
        hex("10203040 50607080 90a0"), hex("09f91102 9d74e35b d84156c5 635688c0")},
       hex("74686973 20697320 736f6d65 20706c61 696e7465 78742074 6f20656e 63727970 74207573 696e6720 5349562d "
           "414553"),
       hex("7bdb6e3b 432667eb 06f4d14b ff2fbd0f cb900f2f ddbe4043 26601965 c889bf17 dba77ceb 094fa663 "
           "b7a3f748 ba8af829 ea64ad54 4a272e9c 485b62a3 fd5c0d")},
  };
}

Octets seal(Siv& siv, const std::vector<Octets>& associated, const Octets& plaintext) {
  if (associated.empty()) return siv.seal({}, plaintext);
  if (associated.size() == 1) return siv.seal({associated[0]}, plaintext);
  return siv.seal({associated[0], associated[1], associated[2]}, plaintext);
}

std::optional<Octets> open(Siv& siv, const std::vector<Octets>& associated, Octets sealed) {
  const auto text = associated.empty()       ? siv.open({}, sealed)
                    : associated.size() == 1 ? siv.open({associated[0]}, sealed)
                                             : siv.open({associated[0], associated[1], associated[2]}, sealed);
  if (!text) return std::nullopt;
  return Octets(text->begin(), text->end());
}

TEST(Siv, SealsAndOpensTheStandardsExamples) {
  for (const Example& example : examples()) {
    SCOPED_TRACE(example.name);
    Siv siv = siv_of(example.key);
    EXPECT_EQ(seal(siv, example.associated, example.plaintext), example.sealed);
    EXPECT_EQ(open(siv, example.associated, example.sealed), example.plaintext);
  }
}

TEST(Siv, NoticesEveryFlippedBit) {
  for (const Example& example : examples()) {
    SCOPED_TRACE(example.name);
    Siv siv = siv_of(example.key);
    for (std::size_t bit = 0; bit < example.sealed.size() * 8; ++bit) {
      Octets sealed = example.sealed;
      sealed[bit / 8] = static_cast<std::uint8_t>(sealed[bit / 8] ^ (1u << bit % 8));
      EXPECT_FALSE(open(siv, example.associated, sealed)) << "bit " << bit;
    }
  }
}

TEST(Siv, NoticesOtherAssociatedBytes) {
  for (const Example& example : examples()) {
    SCOPED_TRACE(example.name);
    Siv siv = siv_of(example.key);
    for (std::size_t part = 0; part < example.associated.size(); ++part) {
      for (std::size_t i = 0; i < example.associated[part].size(); ++i) {
        std::vector<Octets> associated = example.associated;
        associated[part][i] ^= 1;
        EXPECT_FALSE(open(siv, associated, example.sealed)) << "part " << part << " byte " << i;
      }
    }
    EXPECT_FALSE(open(siv, {}, example.sealed));
  }
}

TEST(Siv, NoticesAnotherKeyInEitherHalf) {
  const Example example = examples().front();
  for (std::size_t i : {std::size_t{0}, std::size_t{15}, std::size_t{16}, std::size_t{31}}) {
    Octets key = example.key;
    key[i] ^= 0x80;
    Siv siv = siv_of(key);
    EXPECT_FALSE(open(siv, example.associated, example.sealed)) << "key byte " << i;
  }
}

TEST(Siv, RefusesMissingAndExtraBytes) {
  const Example example = examples().front();
  Siv siv = siv_of(example.key);
  for (std::size_t size = 0; size < example.sealed.size(); ++size) {
    const Octets cut(example.sealed.begin(), example.sealed.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_FALSE(open(siv, example.associated, cut)) << size << " bytes";
  }
  Octets longer = example.sealed;
  longer.push_back(0);
  EXPECT_FALSE(open(siv, example.associated, longer));
}

TEST(Siv, GivesBackTextsOfEverySizeAroundItsBlocks) {
  Siv siv = siv_of(Octets(64, 3));
  std::mt19937 random(1);
  std::vector<std::size_t> sizes;
  for (std::size_t size = 0; size <= 70; ++size) sizes.push_back(size);
  for (std::size_t size : {4079u, 4080u, 4095u, 4096u, 4097u, 8192u, 70000u}) sizes.push_back(size);
  for (std::size_t size : sizes) {
    Octets plaintext(size);
    std::ranges::generate(plaintext, [&random] { return static_cast<std::uint8_t>(random()); });
    const Octets sealed = seal(siv, {}, plaintext);
    ASSERT_EQ(sealed.size(), size + 16);
    EXPECT_EQ(open(siv, {}, sealed), plaintext) << size << " bytes";
  }
}

}  // namespace
}  // namespace qvr::tests
