#include "services/builtin_text_protection.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "base/failure.h"
#include "base/utf8.h"
#include "services/base32.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using services::BuiltinTextProtection;

// The system's primitives, with the derivations counted.
class CountingCryptography final : public Cryptography {
 public:
  std::unique_ptr<BlockCipher> aes(Bytes key) override { return real_.aes(key); }
  void pbkdf2_hmac_sha256(Bytes password, Bytes salt, std::uint32_t rounds, MutableBytes derived) override {
    ++derivations;
    real_.pbkdf2_hmac_sha256(password, salt, rounds, derived);
  }
  void wipe(MutableBytes secret) override { real_.wipe(secret); }

  int derivations = 0;

 private:
  Cryptography& real_ = system_platform().cryptography;
};

class BuiltinTextProtectionTest : public ::testing::Test {
 protected:
  bool refused(TextView key, TextView text) {
    try {
      protection.Descifrar(key, text);
      return false;
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.detail().number, failure_number::kInvalidArgument);
      return true;
    }
  }

  CountingCryptography cryptography;
  BuiltinTextProtection protection{cryptography};
};

// Compatibility: texts protected on another system or by an earlier build must be readable.
TEST_F(BuiltinTextProtectionTest, WritesTheSameOnEverySystem) {
  struct Row {
    TextView key, text, written;
  };
  constexpr Row kRows[] = {
      {u"App de gesti\u00f3n", u"SQLOLEDB",
       u"1uohrghn5e5k3lmxv56medrejtgvapizrp6ae5ef4cfzgftpbf24yqooptnzukwcvo5eulatimvpwo"},
      {u"", u"", u"14csz6bivzrjee33i2clgsyvusxpnj47peyxqpnczp6ddresj3gxvsr5nz3dy52qznszz7fvcg7yf4"},
      {u"k", u"\u00d1and\u00fa \u20ac 7",
       u"1smdu3i2i4rokhehrdz4qms754mtoglbylxmxui3f4bk6xzeyerzfgbg6ocpntice2wzhyydgxsxgg"},
      {u"App de gesti\u00f3n", u"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx",
       u"1vrcjsnckou2flluxhhbziyuysrtmovb7hzimpvyymyg5gibi4vxffbkgviciivhlexzloogguhaoeb2wi6jqyzz5um4y7ia73bukbru"
       u"jktqvu7pmc5qo5sljcyshjj33"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(to_utf8(row.text));
    EXPECT_EQ(protection.Cifrar(row.key, row.text), Text(row.written));
    EXPECT_EQ(protection.Descifrar(row.key, row.written), Text(row.text));
  }
}

TEST_F(BuiltinTextProtectionTest, IsDeterministic) {
  const Text first = protection.Cifrar(u"key", u"text");
  protection.Cifrar(u"other", u"text");
  EXPECT_EQ(protection.Cifrar(u"key", u"text"), first);
  BuiltinTextProtection another(cryptography);
  EXPECT_EQ(another.Cifrar(u"key", u"text"), first);
}

TEST_F(BuiltinTextProtectionTest, DependsOnTheWholeKey) {
  const Text kKeys[] = {u"", Text(1, u'\0'), u"a", u"A", u"a ", Text(u"a\0", 2), Text(u"a\0\0", 3), u"aa", u"\u00e1"};
  std::set<Text> written;
  for (const Text& key : kKeys) written.insert(protection.Cifrar(key, u"text"));
  EXPECT_EQ(written.size(), std::size(kKeys));
  const Text text = protection.Cifrar(u"a", u"text");
  for (const Text& key : kKeys) EXPECT_EQ(refused(key, text), key != u"a") << to_utf8(key);
}

struct Kept {
  const char* name;
  Text text;
};

Text every_unit() {
  Text large;
  for (int i = 0; i < 65536; ++i) large.push_back(static_cast<char16_t>(i * 31));
  return large;
}

const Kept kTexts[] = {
    {"empty", u""},
    {"letter", u"a"},
    {"word", u"SQLOLEDB"},
    {"characters of two, three and four bytes", u"\u00d1and\u00fa \u20ac \U0001f600"},
    {"zero units", Text(5, u'\0')},
    {"signs of a line of values", u"comma, \"quote\" and blank "},
    {"line break", u"line\r\nbreak"},
    {"lone surrogate", Text(1, 0xD800)},
    {"a byte less than a step", Text(31, u'x')},
    {"a whole step", Text(32, u'x')},
    {"a byte more than a step", Text(33, u'x')},
    {"the byte that marks the end", u"\u0080"},
    {"every unit", every_unit()},
};

using ProtectedText = Rows<BuiltinTextProtectionTest, Kept>;

TEST_P(ProtectedText, ComesBack) {
  EXPECT_EQ(protection.Descifrar(u"key", protection.Cifrar(u"key", GetParam().text)), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(, ProtectedText, testing::ValuesIn(kTexts), row_name);

TEST_F(BuiltinTextProtectionTest, GivesRandomTextsBackAndTellsThemApart) {
  std::mt19937 random(303);
  std::set<Text> texts, written;
  for (int round = 0; round < 2000; ++round) {
    Text text;
    for (auto left = random() % 120; left > 0; --left) text.push_back(static_cast<char16_t>(random()));
    written.insert(protection.Cifrar(u"key", text));
    ASSERT_EQ(protection.Descifrar(u"key", protection.Cifrar(u"key", text)), text) << "round " << round;
    texts.insert(std::move(text));
  }
  EXPECT_EQ(written.size(), texts.size());
}

TEST_F(BuiltinTextProtectionTest, RefusesRandomTextsOfItsAlphabet) {
  constexpr TextView kAlphabet = u"abcdefghijklmnopqrstuvwxyz234567";
  std::mt19937 random(304);
  for (int round = 0; round < 5000; ++round) {
    Text text = u"1";
    for (auto left = random() % 160; left > 0; --left) text.push_back(kAlphabet[random() % kAlphabet.size()]);
    ASSERT_TRUE(refused(u"key", text)) << "round " << round;
  }
}

TEST_F(BuiltinTextProtectionTest, UsesAnAlphabetThatSurvivesAFile) {
  Text all;
  for (int i = 0; i < 2000; ++i) all += protection.Cifrar(u"key", decimal(i));
  EXPECT_EQ(all.find_first_not_of(u"abcdefghijklmnopqrstuvwxyz1234567"), Text::npos);
}

TEST_F(BuiltinTextProtectionTest, TellsLengthsInStepsOnly) {
  struct Row {
    std::size_t bytes, units;
  };
  // A scheme digit and Base32 of 16 bytes and the text in steps of 32, of which the mark of the end takes one byte.
  constexpr Row kRows[] = {{0, 78}, {1, 78}, {31, 78}, {32, 129}, {63, 129}, {64, 181}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.bytes);
    EXPECT_EQ(protection.Cifrar(u"key", Text(row.bytes, u'x')).size(), row.units);
  }
}

TEST_F(BuiltinTextProtectionTest, RefusesEverySingleFlippedBit) {
  const Text written = protection.Cifrar(u"key", u"secret");
  const auto bytes = services::from_base32(TextView(written).substr(1));
  ASSERT_TRUE(bytes);
  for (std::size_t bit = 0; bit < bytes->size() * 8; ++bit) {
    auto flipped = *bytes;
    flipped[bit / 8] = static_cast<std::uint8_t>(flipped[bit / 8] ^ (1u << bit % 8));
    Text text = u"1";
    services::append_base32(text, flipped);
    EXPECT_TRUE(refused(u"key", text)) << "bit " << bit;
  }
}

TEST_F(BuiltinTextProtectionTest, RefusesEveryOtherLetterAtEveryPlace) {
  const Text written = protection.Cifrar(u"key", u"secret");
  for (std::size_t at = 0; at < written.size(); ++at) {
    for (char16_t other : TextView(u"abcdefghijklmnopqrstuvwxyz1234567 ,\"")) {
      if (other == written[at]) continue;
      Text changed = written;
      changed[at] = other;
      EXPECT_TRUE(refused(u"key", changed)) << "unit " << at;
    }
  }
}

TEST_F(BuiltinTextProtectionTest, RefusesOtherFormsOfATextItWrote) {
  const Text written = protection.Cifrar(u"key", u"secret");
  Text upper = written;
  for (char16_t& unit : upper) unit = fold(unit);
  const Kept kForms[] = {
      {"capitals", upper},
      {"nothing", u""},
      {"scheme alone", u"1"},
      {"without its scheme", written.substr(1)},
      {"another scheme", u"2" + written.substr(1)},
      {"blank before", u" " + written},
      {"blank behind", written + u" "},
      {"letter behind", written + u"a"},
      {"last letter missing", written.substr(0, written.size() - 1)},
      {"the text itself", u"secret"},
      {"twice", written + written},
  };
  for (const Kept& form : kForms) EXPECT_TRUE(refused(u"key", form.text)) << form.name;
}

TEST_F(BuiltinTextProtectionTest, DerivesOncePerKeyInARow) {
  for (int i = 0; i < 11; ++i) protection.Cifrar(u"key", decimal(i));
  protection.Descifrar(u"key", protection.Cifrar(u"key", u"x"));
  EXPECT_EQ(cryptography.derivations, 1);
  protection.Cifrar(u"other", u"x");
  EXPECT_EQ(cryptography.derivations, 2);
}

}  // namespace
}  // namespace qvr::tests
