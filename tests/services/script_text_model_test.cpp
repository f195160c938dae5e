// Decoding of random texts and bytes, compared with what they were encoded from.
#include <gtest/gtest.h>

#include <random>

#include "base/failure.h"
#include "base/utf8.h"
#include "services/script_text.h"
#include "support/fake_files.h"

namespace qvr::tests {
namespace {

using namespace services;

class ScriptTextModelTest : public testing::Test {
 protected:
  ScriptTextModelTest() { files.single_byte_page = true; }
  std::size_t pick(std::size_t bound) { return random() % bound; }

  // Any characters, without zero units; line ends and ASCII more often than chance would have them.
  Text random_text() {
    Text text;
    for (std::size_t left = pick(12); left > 0; --left) {
      switch (pick(5)) {
        case 0: text += u"\r\n"[pick(2)]; break;
        case 1: text += static_cast<char16_t>(1 + pick(0x7F)); break;
        case 2: text += static_cast<char16_t>(0x80 + pick(0x780)); break;
        case 3: text += static_cast<char16_t>(pick(2) == 0 ? 0x800 + pick(0xD000) : 0xE000 + pick(0x2000)); break;
        default:
          text += static_cast<char16_t>(0xD800 + pick(0x400));
          text += static_cast<char16_t>(0xDC00 + pick(0x400));
      }
    }
    return text;
  }

  static std::string utf16_bytes(TextView text, bool big_endian) {
    std::string bytes = big_endian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char16_t unit : text) {
      const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
      bytes += big_endian ? high : low;
      bytes += big_endian ? low : high;
    }
    return bytes;
  }

  FakeFiles files;
  std::mt19937 random{20260107};
};

TEST_F(ScriptTextModelTest, EveryTextComesBackFromEveryEncoding) {
  for (int round = 0; round < 20000; ++round) {
    const Text text = random_text();
    SCOPED_TRACE(testing::PrintToString(text));
    const std::string utf8 = to_utf8(text);
    ASSERT_EQ(decoded_script("\xEF\xBB\xBF" + utf8, files), text);
    ASSERT_EQ(decoded_script(utf16_bytes(text, false), files), text);
    ASSERT_EQ(decoded_script(utf16_bytes(text, true), files), text);
    if (text.starts_with(u'\ufeff')) continue;  // would be its mark
    ASSERT_EQ(decoded_script(utf8, files), text);
  }
}

// What a text without a mark can be, as its rule says it.
TEST_F(ScriptTextModelTest, BytesWithoutAMarkAreUtf8OrOfThePage) {
  int utf8 = 0, page = 0, refused = 0;
  for (int round = 0; round < 50000; ++round) {
    std::string bytes = to_utf8(random_text());
    if (!bytes.empty() && pick(2) == 0) bytes[pick(bytes.size())] = static_cast<char>(pick(256));
    if (bytes.starts_with("\xEF\xBB\xBF") || bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) continue;
    if (bytes.find('\0') != std::string::npos) {
      EXPECT_THROW(decoded_script(bytes, files), RuntimeFailure);
      ++refused;
      continue;
    }
    const Text text = decoded_script(bytes, files);
    const bool is_page = encoding_of(bytes) == ScriptEncoding::SystemPage;
    ASSERT_EQ(is_page ? files.to_system_page(text) : to_utf8(text), bytes) << "every byte is in the text";
    ++(is_page ? page : utf8);
  }
  EXPECT_GT(utf8, 20000);
  EXPECT_GT(page, 5000);
  EXPECT_GT(refused, 20);
}

TEST_F(ScriptTextModelTest, LinesStayTheSameLines) {
  for (int round = 0; round < 20000; ++round) {
    const Text text = random_text();
    Text expected;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool after_return = i > 0 && text[i - 1] == u'\r';
      if (text[i] == u'\n' && after_return) continue;  // told with its return
      if (text[i] == u'\r' || text[i] == u'\n') {
        expected += u"\r\n";
      } else {
        expected += text[i];
      }
    }
    const Text whole = with_whole_line_breaks(text);
    ASSERT_EQ(whole, expected) << testing::PrintToString(text);
    ASSERT_EQ(with_whole_line_breaks(whole), whole);
  }
}

}  // namespace
}  // namespace qvr::tests
