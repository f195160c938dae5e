// Bytes that are read in a way the author may not mean.
#include <gtest/gtest.h>

#include "support/rows.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using namespace std::string_literals;

std::string utf16(std::string_view ascii, bool big_endian) {
  std::string bytes = big_endian ? "\xFE\xFF"s : "\xFF\xFE"s;
  for (const char each : ascii) bytes += big_endian ? std::string{'\0', each} : std::string{each, '\0'};
  return bytes;
}

struct BytesRow {
  const char* name;
  std::string bytes;
  Rules rules;
};

const BytesRow kEncodings[] = {
    {"UTF-8", "select 'Jam\xC3\xB3n'\r\nGO\r\n", {}},
    {"mark of UTF-8", "\xEF\xBB\xBFselect 1\r\nGO\r\n", {"1 byte-order-mark"}},
    {"UTF-16", utf16("select 1\r\nGO\r\n", false), {"1 utf-16"}},
    {"UTF-16, most significant first", utf16("select 1\r\nGO\r\n", true), {"1 utf-16"}},
    {"system page", "select 1\r\nGO\r\nselect '\xC3\xB3 Jam\xF3n'\r\nGO\r\n", {"3 ansi-page"}},
    {"a surrogate", "select 1\r\nGO\r\nselect '\xED\xA0\x80'\r\nGO\r\n", {"3 ansi-page"}},
    {"zero byte", "select 1\r\nGO\r\nselect\0 2\r\nGO\r\n"s, {"3 nul-byte"}},
    {"zero character", utf16("select 1\0\r\nGO\r\n"s, false), {"1 utf-16", "1 nul-byte"}},
    {"half a unit", utf16("select 1\r\nGO\r\n", false) + "x", {"0 broken-encoding", "1 utf-16"}},
    {"mark and no UTF-8", "\xEF\xBB\xBFselect '\xF3'\r\nGO\r\n", {"0 broken-encoding", "1 byte-order-mark"}},
    {"empty", "", {"0 empty-file"}},
    {"only a mark", "\xEF\xBB\xBF", {"0 empty-file", "1 byte-order-mark"}},
};

using EncodingRules = Rows<testing::Test, BytesRow>;

TEST_P(EncodingRules, TellHowBytesAreRead) { EXPECT_EQ(rules_in(GetParam().bytes), GetParam().rules); }

INSTANTIATE_TEST_SUITE_P(, EncodingRules, testing::ValuesIn(kEncodings), row_name);

const BytesRow kLineEnds[] = {
    {"CR LF", "a\r\nGO\r\n", {}},
    {"LF", "a\nGO\nb\nGO\n", {"0 lf-only"}},
    {"CR", "a\rGO\rb\rGO\r", {"0 cr-only"}},
    {"one LF", "a\r\nGO\r\nb\nc\r\nGO\r\n", {"3 mixed-line-ends"}},
    {"one CR", "a\r\nGO\r\nb\r\nc\rd\r\nGO\r\n", {"4 mixed-line-ends"}},
    {"LF and CR", "a\nGO\nb\rGO\n", {"1 mixed-line-ends"}},
    {"the rules see whole line ends", "a\nGO 5\nb\nGO\n", {"0 lf-only", "2 go-count"}},
};

using LineEndRules = Rows<testing::Test, BytesRow>;

TEST_P(LineEndRules, TellOfThoseThatAreNotCrLf) { EXPECT_EQ(rules_in(GetParam().bytes), GetParam().rules); }

INSTANTIATE_TEST_SUITE_P(, LineEndRules, testing::ValuesIn(kLineEnds), row_name);

}  // namespace
}  // namespace qvr::tests
