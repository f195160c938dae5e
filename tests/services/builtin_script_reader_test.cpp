#include "services/builtin_script_reader.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/failure.h"
#include "base/utf8.h"
#include "services/script_text.h"
#include "support/fake_files.h"
#include "support/rows.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

using namespace std::string_literals;
using services::BuiltinScriptReader;
using services::ScriptEncoding;

class BuiltinScriptReaderTest : public testing::Test {
 protected:
  BuiltinScriptReaderTest() {
    files.keep_in_memory();
    files.single_byte_page = true;
  }

  Text read(std::string bytes) {
    files.memory[u"x.cfc"] = std::move(bytes);
    return reader.Leer(u"id", u"x.cfc").value();
  }
  // The number of the failure that reading ends in; 0 for none.
  std::int32_t failure(std::string bytes) {
    try {
      read(std::move(bytes));
      return 0;
    } catch (const RuntimeFailure& failed) {
      return failed.detail().number;
    }
  }

  FakeFiles files;
  BuiltinScriptReader reader{files};
};

struct Row {
  const char* name;
  std::string bytes;
  ScriptEncoding encoding;
  Text text;
};

using enum ScriptEncoding;

const Row kRows[] = {
    {"nothing", "", Utf8, u""},
    {"plain letters", "GO", Utf8, u"GO"},
    {"every sign of one byte", "\x01\t\x1F ~\x7F", Utf8, u"\x01\t\x1F ~\x7F"},
    {"UTF-8 of two, three and four bytes", "\xC3\xB1\xE2\x82\xAC\xF0\x9F\x93\x81", Utf8, u"\u00f1\u20ac\U0001F4C1"},
    {"first and last of each length", "\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", Utf8,
     u"\u0080\u07ff\u0800\uffff\U00010000\U0010FFFF"},
    {"around the surrogates", "\xED\x9F\xBF\xEE\x80\x80", Utf8, u"\ud7ff\ue000"},
    {"UTF-8 mark", "\xEF\xBB\xBF\xC3\xB1", Utf8WithMark, u"\u00f1"},
    {"UTF-8 mark alone", "\xEF\xBB\xBF", Utf8WithMark, u""},
    {"second UTF-8 mark is text", "\xEF\xBB\xBF\xEF\xBB\xBFx", Utf8WithMark, u"\ufeffx"},
    {"UTF-8 mark further on is text", "x\xEF\xBB\xBF", Utf8, u"x\ufeff"},
    {"UTF-8 mark and a zero byte", "\xEF\xBB\xBF\0x"s, Utf8WithMark, Text(u"\0x", 2)},
    {"UTF-16 little-endian", "\xFF\xFE\x47\x00\xF1\x00\xAC\x20"s, Utf16LittleEndian, u"G\u00f1\u20ac"},
    {"UTF-16 big-endian", "\xFE\xFF\x00\x47\x00\xF1\x20\xAC"s, Utf16BigEndian, u"G\u00f1\u20ac"},
    {"UTF-16 pair little-endian", "\xFF\xFE\x3D\xD8\xC1\xDC", Utf16LittleEndian, u"\U0001F4C1"},
    {"UTF-16 pair big-endian", "\xFE\xFF\xD8\x3D\xDC\xC1", Utf16BigEndian, u"\U0001F4C1"},
    {"UTF-16 mark alone", "\xFF\xFE", Utf16LittleEndian, u""},
    {"UTF-16 mark alone, big-endian", "\xFE\xFF", Utf16BigEndian, u""},
    {"UTF-16 zero unit", "\xFF\xFE\0\0x\0"s, Utf16LittleEndian, Text(u"\0x", 2)},
    {"UTF-16 second mark is text", "\xFF\xFE\xFF\xFE", Utf16LittleEndian, u"\ufeff"},
    {"system's page", "a\xF1o", SystemPage, u"a\u00f1o"},
    {"system's page, cut mark", "\xEF\xBB", SystemPage, u"\u00ef\u00bb"},
    {"system's page, half a UTF-16 mark", "\xFF", SystemPage, u"\u00ff"},
    {"letters of both: the page", "\xC3\xB1 a\xF1o", SystemPage, u"\u00c3\u00b1 a\u00f1o"},
    {"cut two bytes", "x\xC3", SystemPage, u"x\u00c3"},
    {"cut three bytes", "\xE2\x82", SystemPage, u"\u00e2\u0082"},
    {"cut four bytes", "\xF0\x9F\x93 ", SystemPage, u"\u00f0\u009f\u0093 "},
    {"byte that goes on alone", "\x80", SystemPage, u"\u0080"},
    {"too many that go on", "\xC3\xB1\xB1", SystemPage, u"\u00c3\u00b1\u00b1"},
    {"more bytes than needed", "\xC0\xAF", SystemPage, u"\u00c0\u00af"},
    {"more bytes than needed, of three", "\xE0\x80\xAF", SystemPage, u"\u00e0\u0080\u00af"},
    {"more bytes than needed, of four", "\xF0\x8F\xBF\xBF", SystemPage, u"\u00f0\u008f\u00bf\u00bf"},
    {"beyond the last character", "\xF4\x90\x80\x80", SystemPage, u"\u00f4\u0090\u0080\u0080"},
    {"first byte that never is", "\xF8\x88\x80\x80\x80", SystemPage, u"\u00f8\u0088\u0080\u0080\u0080"},
    {"lone surrogate", "\xED\xA0\xBD", SystemPage, u"\u00ed\u00a0\u00bd"},
    {"lone second surrogate", "\xED\xB3\x81", SystemPage, u"\u00ed\u00b3\u0081"},
    {"pair in six bytes", "\xED\xA0\xBD\xED\xB3\x81", SystemPage, u"\u00ed\u00a0\u00bd\u00ed\u00b3\u0081"},
};

using ScriptBytes = Rows<BuiltinScriptReaderTest, Row>;

TEST_P(ScriptBytes, AreToldApartAndDecoded) {
  EXPECT_EQ(services::encoding_of(GetParam().bytes), GetParam().encoding);
  EXPECT_EQ(read(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(, ScriptBytes, testing::ValuesIn(kRows), row_name);

struct Refused {
  const char* name;
  std::string bytes;
};

const Refused kRefused[] = {
    {"marked UTF-8, byte of a page",
     "\xEF\xBB\xBF"
     "a\xF1o"},
    {"marked UTF-8, cut at the end", "\xEF\xBB\xBFx\xE2\x82"},
    {"marked UTF-8, lone surrogate", "\xEF\xBB\xBF\xED\xA0\xBD"},
    {"marked UTF-8, pair in six bytes", "\xEF\xBB\xBF\xED\xA0\xBD\xED\xB3\x81"},
    {"half a unit", "\xFF\xFEx"},
    {"half a unit at the end", "\xFE\xFF\0xy"s},
    {"first half of a pair at the end", "\xFF\xFE\x3D\xD8"},
    {"first half before a letter", "\xFF\xFE\x3D\xD8x\0"s},
    {"two first halves", "\xFF\xFE\x3D\xD8\x3D\xD8\xC1\xDC"},
    {"second half alone", "\xFE\xFF\xDC\xC1"},
    {"halves the wrong way round", "\xFE\xFF\xDC\xC1\xD8\x3D"},
    {"zero byte alone", "\0"s},
    {"zero byte at the end", "select 1\0"s},
    {"zero byte in a text of the page", "a\xF1o\0"s},
    {"UTF-16 without a mark", "G\0O\0"s},
    {"UTF-16 big-endian without a mark", "\0G\0O"s},
};

using NoScriptBytes = Rows<BuiltinScriptReaderTest, Refused>;

TEST_P(NoScriptBytes, AreRefused) { EXPECT_EQ(failure(GetParam().bytes), failure_number::kFile); }

INSTANTIATE_TEST_SUITE_P(, NoScriptBytes, testing::ValuesIn(kRefused), row_name);

// Line ends are shown as r and n.
Text line_ends(TextView shown) { return replace_all(replace_all(shown, u"r", u"\r"), u"n", u"\n"); }

struct LineEnds {
  const char* name;
  TextView before, after;
};

constexpr LineEnds kLineEnds[] = {
    {"no line", u"a", u"a"},
    {"CR LF", u"rn", u"rn"},
    {"LF", u"n", u"rn"},
    {"CR", u"r", u"rn"},
    {"two LF", u"nn", u"rnrn"},
    {"two CR", u"rr", u"rnrn"},
    {"LF before CR", u"nr", u"rnrn"},
    {"CR before CR LF", u"rrn", u"rnrn"},
    {"CR LF before LF", u"rnn", u"rnrn"},
    {"CR LF before CR", u"rnr", u"rnrn"},
    {"LF before CR LF", u"nrn", u"rnrn"},
    {"CR LF inside CR and LF", u"rrnn", u"rnrnrn"},
    {"two CR LF", u"rnrn", u"rnrn"},
    {"LF between", u"anb", u"arnb"},
    {"CR between", u"arb", u"arnb"},
    {"CR LF between", u"arnb", u"arnb"},
    {"each of the three", u"anbrcrnd", u"arnbrncrnd"},
    {"around GO", u"nanGOnbn", u"rnarnGOrnbrn"},
    {"other separators of lines", u"a\u0085\u2028b\v\f", u"a\u0085\u2028b\v\f"},
};

using ScriptLineEnds = Rows<BuiltinScriptReaderTest, LineEnds>;

TEST_P(ScriptLineEnds, AreCrLf) {
  const Text before = line_ends(GetParam().before), after = line_ends(GetParam().after);
  EXPECT_EQ(services::with_whole_line_breaks(before), after);
  EXPECT_EQ(read(to_utf8(before)), after);
}

INSTANTIATE_TEST_SUITE_P(, ScriptLineEnds, testing::ValuesIn(kLineEnds), row_name);

TEST_F(BuiltinScriptReaderTest, LineEndsAreWholeInEveryEncoding) {
  EXPECT_EQ(read("\xEF\xBB\xBF\n\xC3\xB1\r"), u"\r\n\u00f1\r\n");
  EXPECT_EQ(read("\n\xF1\r"), u"\r\n\u00f1\r\n");
  EXPECT_EQ(read("\xFF\xFE\n\0\xF1\0\r\0"s), u"\r\n\u00f1\r\n");
  EXPECT_EQ(read("\xFE\xFF\0\n\0\xF1\0\r"s), u"\r\n\u00f1\r\n");
  EXPECT_EQ(read("\xFF\xFE\x0A\x0D\x0D\x0A"), u"\u0d0a\u0a0d") << "half a unit is no line end";
}

TEST_F(BuiltinScriptReaderTest, FilesAreReadWholeWhateverTheirSize) {
  constexpr std::size_t kMebibyte = std::size_t{1} << 20;
  for (const std::size_t size : {kMebibyte - 1, kMebibyte, kMebibyte + 1, 3 * kMebibyte, 5 * kMebibyte + 7}) {
    SCOPED_TRACE(size);
    std::string bytes;
    while (bytes.size() < size) bytes += "\xE2\x82\xAC";  // a character across every border of what is read at once
    const Text expected(bytes.size() / 3, u'\u20ac');
    EXPECT_TRUE(read(bytes) == expected);
    std::string letters(size, 'a');
    letters.back() = '\r';
    EXPECT_TRUE(read(letters) == Text(size - 1, u'a') + Text(kLineBreak));
  }
}

TEST_F(BuiltinScriptReaderTest, RefusesAFileBeyondTheLargest) {
  for (const std::size_t beyond : {std::size_t{1}, std::size_t{10} << 20}) {
    std::size_t taken = 0;
    files.input = [&] { return std::make_unique<EndlessLine>(BuiltinScriptReader::kLargest + beyond, taken); };
    EXPECT_EQ(failure(""), failure_number::kFile);
    EXPECT_EQ(taken, BuiltinScriptReader::kLargest + 1) << "no more is read than shows that it is too large";
  }
}

// A file that breaks after its first portion.
class BrokenFile final : public InputFile {
 public:
  std::size_t read(std::span<char> buffer) override {
    if (broken_) throw RuntimeFailure(failure_number::kFile);
    broken_ = true;
    std::ranges::fill(buffer, 'a');
    return buffer.size();
  }

 private:
  bool broken_ = false;
};

TEST_F(BuiltinScriptReaderTest, AFileThatCannotBeReadIsAFailure) {
  EXPECT_THROW(reader.Leer(u"id", u"missing.cfc"), RuntimeFailure);
  files.input = [] { return std::make_unique<BrokenFile>(); };
  EXPECT_EQ(failure(""), failure_number::kFile);
}

TEST_F(BuiltinScriptReaderTest, TheIdentificationDoesNotMatter) {
  files.memory[u"x.cfc"] = "text";
  for (const TextView id : {u"", u"id", u"\u00f1 *"}) EXPECT_EQ(reader.Leer(id, u"x.cfc"), u"text");
}

TEST(BuiltinScriptReader, ReadsTheSystemsFiles) {
  const TemporaryFolder folder;
  folder.write(u"gesti\u00f3n [1].cfc",
               "\xEF\xBB\xBF"
               "a\xC3\xB1o\nGO\n");
  BuiltinScriptReader reader(system_platform().files);
  EXPECT_EQ(reader.Leer(u"", folder.file_text(u"gesti\u00f3n [1].cfc")), u"a\u00f1o\r\nGO\r\n");
  EXPECT_THROW(reader.Leer(u"", folder.file_text(u"missing.cfc")), RuntimeFailure);
  EXPECT_THROW(reader.Leer(u"", folder.text()), RuntimeFailure) << "a folder is no file";
}

}  // namespace
}  // namespace qvr::tests
