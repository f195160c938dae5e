#include "qvrscript/connection/input_line.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/utf8.h"
#include "qvrscript/command_line/usage_failure.h"

namespace qvr::tests {
namespace {

using namespace script_tool;

// Hands the bytes over in pieces of this size.
std::optional<std::string> line_of(std::string_view bytes, std::size_t piece = 3) {
  return first_line([&](std::span<char> buffer) {
    const std::size_t count = bytes.copy(buffer.data(), std::min(piece, buffer.size()));
    bytes.remove_prefix(count);
    return count;
  });
}

TEST(InputLine, IsTheFirstWithoutItsEnd) {
  EXPECT_EQ(line_of("DSN=x\nmore\n"), "DSN=x");
  EXPECT_EQ(line_of("DSN=x\r\nmore"), "DSN=x");
  EXPECT_EQ(line_of("DSN=x"), "DSN=x");
  EXPECT_EQ(line_of("DSN=x\r"), "DSN=x");
  EXPECT_EQ(line_of("\nmore"), "");
}

TEST(InputLine, HasNoByteOrderMark) {
  EXPECT_EQ(line_of("\xEF\xBB\xBF"
                    "DSN=x\n"),
            "DSN=x");
}

TEST(InputLine, OfAnEmptyInputIsNone) { EXPECT_EQ(line_of(""), std::nullopt); }

TEST(InputLine, EndsAt64KiB) {
  const std::string most(kLongestInputLine, 'x');
  EXPECT_EQ(line_of(most + "\n", 4096), most);
  EXPECT_EQ(line_of(most, 5000), most);
  EXPECT_THROW(line_of(most + "x\n", 4096), UsageFailure);
  EXPECT_THROW(line_of(most + "x", 4096), UsageFailure);
}

TEST(InputLine, IsUtf8) {
  EXPECT_EQ(text_of_line("a\xC3\xB1o"), u"a\u00f1o");
  EXPECT_THROW(text_of_line("a\xF1o"), UsageFailure);
}

}  // namespace
}  // namespace qvr::tests
