#include "services/base32.h"

#include <gtest/gtest.h>

#include <random>

#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using services::append_base32;
using services::from_base32;
using Octets = std::vector<std::uint8_t>;

Text written(std::string_view bytes) {
  Text text;
  append_base32(text, {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
  return text;
}

// The examples of RFC 4648, in lower case and without padding.
TEST(Base32, WritesTheStandardsExamples) {
  EXPECT_EQ(written(""), u"");
  EXPECT_EQ(written("f"), u"my");
  EXPECT_EQ(written("fo"), u"mzxq");
  EXPECT_EQ(written("foo"), u"mzxw6");
  EXPECT_EQ(written("foob"), u"mzxw6yq");
  EXPECT_EQ(written("fooba"), u"mzxw6ytb");
  EXPECT_EQ(written("foobar"), u"mzxw6ytboi");
  EXPECT_EQ(written("\xff\xff\xff\xff\xff"), u"77777777");
}

TEST(Base32, Appends) {
  Text text = u"1";
  append_base32(text, Octets{'f'});
  EXPECT_EQ(text, u"1my");
}

TEST(Base32, GivesRandomBytesBack) {
  std::mt19937 random(8);
  for (std::size_t size = 0; size < 300; ++size) {
    Octets bytes(size);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
    Text text;
    append_base32(text, bytes);
    ASSERT_EQ(text.size(), (size * 8 + 4) / 5);
    ASSERT_EQ(from_base32(text), bytes) << size << " bytes";
  }
}

struct Refused {
  const char* name;
  std::vector<TextView> texts;
};

const Refused kRefused[] = {
    {"lengths that no bytes have", {u"m", u"mzx", u"mzxw6y"}},
    {"zeros in a digit too many", {u"a", u"mya", u"mzxw6a"}},
    {"bits behind the last byte", {u"mz", u"mzxr", u"mzxw7"}},
    {"other case", {u"MY", u"mY", u"mzxw6YTB"}},
    {"padding", {u"my======"}},
    {"blanks", {u"m y", u" my", u"my\r\n"}},
    {"digits of other alphabets", {u"m0", u"m1", u"m8", u"m9"}},
    {"letters of other alphabets", {u"m\u00e9", u"m\uff41"}},
};

using NoBase32 = Rows<testing::Test, Refused>;

TEST_P(NoBase32, IsRefused) {
  for (TextView text : GetParam().texts) EXPECT_FALSE(from_base32(text)) << testing::PrintToString(Text(text));
}

INSTANTIATE_TEST_SUITE_P(, NoBase32, testing::ValuesIn(kRefused), row_name);

TEST(Base32, HasOneSpellingForEachBytes) {
  constexpr TextView kAlphabet = u"abcdefghijklmnopqrstuvwxyz234567";
  int readable = 0;
  for (char16_t first : kAlphabet) {
    for (char16_t second : kAlphabet) {
      const Text text{first, second};
      const auto bytes = from_base32(text);
      if (!bytes) continue;
      ++readable;
      Text again;
      append_base32(again, *bytes);
      EXPECT_EQ(again, text);
    }
  }
  EXPECT_EQ(readable, 256);
}

}  // namespace
}  // namespace qvr::tests
