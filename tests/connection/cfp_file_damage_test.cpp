// Damaged files: each is rejected as a whole, and the object is cleared.
#include <gtest/gtest.h>

#include <random>

#include "connection/sample_parameters.h"
#include "services/builtin_text_protection.h"
#include "support/rows.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using services::BuiltinTextProtection;
using tests::PrintTo;

const Text kNoLine = u"QVRcfp.Crear: 75 The file has fewer than ten lines",
           kNoEngine = u"QVRcfp.Crear: 13 The file's first line is no 32-bit number",
           kNoProtectedText = trace_of(u"QVRcfp.Crear", 5), kOverflow = trace_of(u"QVRcfp.Crear", 6),
           kOtherValues = u"QVRcfp.Crear: 5 The file's check line does not match its other lines";

class CfpFileDamageTest : public ::testing::Test {
 protected:
  CfpFileDamageTest() {
    thread.files.keep_in_memory();
    write_sample();
  }

  void write_sample() {
    QVRcfp cfp;
    cfp.Asignar(u"id", sample_parameters());
    ASSERT_TRUE(cfp.Guardar(u"id", u"F", u"a"));
    whole = thread.files.memory[u"F\\a.cfp"];
    lines.clear();
    for (std::size_t at = 0; at < whole.size();) {
      const std::size_t end = whole.find("\r\n", at);
      lines.push_back(whole.substr(at, end - at));
      at = end + 2;
    }
    ASSERT_EQ(lines.size(), 10u);
  }

  static std::string of(const Lines& lines, std::string_view line_end = "\r\n") {
    std::string bytes;
    for (const std::string& line : lines) bytes.append(line).append(line_end);
    return bytes;
  }

  std::string protected_line(TextView text) { return to_utf8(CheapProtection().Cifrar(u"id", text)); }

  // Gives the one line that is traced.
  Text refused(const std::string& bytes, TextView id = u"id") {
    thread.files.memory[u"F\\a.cfp"] = bytes;
    QVRcfp cfp;
    cfp.Asignar(u"id", sample_parameters());
    EXPECT_FALSE(cfp.Crear(id, u"F", u"a"));
    expect_cleared(cfp);
    EXPECT_TRUE(thread.log.take().empty()) << "nothing may be shown";
    const Traces failures = traced();
    EXPECT_EQ(failures.size(), 1U);
    return failures.empty() ? Text() : failures[0];
  }

  void expect_read(const std::string& bytes) {
    thread.files.memory[u"F\\a.cfp"] = bytes;
    QVRcfp cfp;
    EXPECT_TRUE(cfp.Crear(u"id", u"F", u"a"));
    expect_parameters(cfp, sample_parameters(), u"a");
  }

  TestThread thread;
  std::string whole;
  Lines lines;
};

TEST_F(CfpFileDamageTest, TheUndamagedFileIsRead) { expect_read(whole); }

TEST_F(CfpFileDamageTest, AMissingFileIsRefused) {
  thread.files.memory.clear();
  QVRcfp cfp;
  EXPECT_FALSE(cfp.Crear(u"id", u"F", u"a"));
  expect_cleared(cfp);
  EXPECT_EQ(traced(), Traces{u"QVRcfp.Crear: 75 Path/File access error"});
}

TEST_F(CfpFileDamageTest, TruncatedAtAnyByteOfItsLinesItIsRefused) {
  const std::size_t end_of_last_line = whole.size() - 2;
  for (std::size_t size = 0; size < end_of_last_line; ++size) {
    refused(whole.substr(0, size));
    ASSERT_FALSE(HasFailure()) << size << " bytes";
  }
}

TEST_F(CfpFileDamageTest, WithoutTheEndOfItsLastLineItIsRead) {
  expect_read(whole.substr(0, whole.size() - 1));
  expect_read(whole.substr(0, whole.size() - 2));
}

TEST_F(CfpFileDamageTest, WithoutAnyOneLineItIsRefused) {
  for (std::size_t missing = 0; missing < lines.size(); ++missing) {
    SCOPED_TRACE(missing);
    Lines fewer = lines;
    fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(missing));
    EXPECT_EQ(refused(of(fewer)), missing == 0 ? kNoEngine : kNoLine);
  }
}

TEST_F(CfpFileDamageTest, LinesBehindTheTenthAreNotRead) {
  expect_read(whole + "anything\r\nat all");
  expect_read(whole + std::string(100, '\0'));
}

TEST_F(CfpFileDamageTest, WithAnyTwoLinesSwappedItIsRefused) {
  for (std::size_t a = 0; a < lines.size(); ++a) {
    for (std::size_t b = a + 1; b < lines.size(); ++b) {
      SCOPED_TRACE(::testing::Message() << a << " and " << b);
      Lines swapped = lines;
      std::swap(swapped[a], swapped[b]);
      EXPECT_EQ(refused(of(swapped)), a == 0 ? kNoEngine : kOtherValues);
    }
  }
}

TEST_F(CfpFileDamageTest, WithAnotherValueInAnyLineItIsRefused) {
  for (std::size_t edited = 0; edited < lines.size(); ++edited) {
    SCOPED_TRACE(edited);
    Lines changed = lines;
    changed[edited] = protected_line(u"3");
    EXPECT_EQ(refused(of(changed)), kOtherValues);
  }
}

struct FirstLineRow {
  const char* name;
  TextView text;
  const Text* refused;  // null when it is read as two
};
const FirstLineRow kFirstLines[] = {
    {"shortest", u"2", nullptr},
    {"zeros in front", u"002", nullptr},
    {"sign", u"+2", nullptr},
    {"blank in front", u" 2", nullptr},
    {"blank behind", u"2 ", nullptr},
    {"blanks and a tab", u" \t 2  ", nullptr},
    {"decimals that say nothing", u"2.0", nullptr},
    {"a point at the end", u"2.", nullptr},
    {"exponent", u"2e0", nullptr},
    {"exponent of another scale", u"0.2E+1", nullptr},
    {"another number", u"3", &kOtherValues},
    {"negative", u"-2", &kOtherValues},
    {"not whole", u"2.5", &kNoEngine},
    {"another locale's decimals", u"2,0", &kNoEngine},
    {"nothing", u"", &kNoEngine},
    {"blanks only", u"  ", &kNoEngine},
    {"word", u"SQL", &kNoEngine},
    {"letter behind", u"2x", &kNoEngine},
    {"letter in front", u"x2", &kNoEngine},
    {"blank inside", u"+ 2", &kNoEngine},
    {"two numbers", u"2 2", &kNoEngine},
    {"sign alone", u"-", &kNoEngine},
    {"hexadecimal", u"&H2", &kNoEngine},
    {"no 32-bit number", u"99999999999", &kNoEngine},
    {"no 32-bit number either", u"-2147483649", &kNoEngine},
    {"no number of any size", u"2e999", &kOverflow},
    {"line feed", u"2\n", &kNoEngine},
};

using FirstLine = Rows<CfpFileDamageTest, FirstLineRow>;

TEST_P(FirstLine, IsANumberInAnySpelling) {
  Lines changed = lines;
  changed[0] = protected_line(GetParam().text);
  if (GetParam().refused == nullptr) return expect_read(of(changed));
  EXPECT_EQ(refused(of(changed)), *GetParam().refused);
}

INSTANTIATE_TEST_SUITE_P(, FirstLine, ::testing::ValuesIn(kFirstLines), row_name);

TEST_F(CfpFileDamageTest, WithAnyOneCharacterChangedItIsRefused) {
  for (std::size_t at = 0; at < whole.size(); ++at) {
    std::string changed = whole;
    changed[at] = whole[at] == 'b' ? 'c' : 'b';
    refused(changed);
    ASSERT_FALSE(HasFailure()) << "byte " << at;
  }
}

TEST_F(CfpFileDamageTest, WithLineFeedsAloneItIsRead) {
  const std::string bytes = of(lines, "\n");
  expect_read(bytes);
  expect_read(bytes.substr(0, bytes.size() - 1));
}

TEST_F(CfpFileDamageTest, WithMixedLineEndsItIsRead) {
  for (std::size_t with_line_feed = 0; with_line_feed < lines.size(); ++with_line_feed) {
    SCOPED_TRACE(with_line_feed);
    std::string bytes;
    for (std::size_t i = 0; i < lines.size(); ++i) bytes += lines[i] + (i == with_line_feed ? "\n" : "\r\n");
    expect_read(bytes);
  }
}

TEST_F(CfpFileDamageTest, WithOtherLineEndsItIsRefused) {
  EXPECT_EQ(refused(of(lines, "\r")), kNoProtectedText);
  EXPECT_EQ(refused(of(lines, "")), kNoProtectedText);
  EXPECT_EQ(refused(of(lines, "\n\r")), kNoProtectedText);
  EXPECT_EQ(refused(of(lines, "\r\r\n")), kNoProtectedText);
  EXPECT_EQ(refused(of(lines, "\n\n")), kNoProtectedText);
  EXPECT_EQ(refused("\r\n" + whole), kNoProtectedText);
  EXPECT_EQ(refused("\n" + whole), kNoProtectedText);
}

TEST_F(CfpFileDamageTest, WithAnotherIdentificationItIsRefused) {
  for (TextView id : {TextView(u""), TextView(u"ID"), TextView(u"id "), TextView(u"other")}) {
    SCOPED_TRACE(to_utf8(id));
    EXPECT_EQ(refused(whole, id), kNoEngine);
  }
}

std::string random_bytes() {
  std::mt19937 random(3);
  std::string bytes;
  for (int i = 0; i < 100000; ++i) bytes.push_back(static_cast<char>(random()));
  return bytes;
}

std::string ten_lines(std::string_view line) {
  std::string bytes;
  for (int i = 0; i < 10; ++i) bytes.append(line).append("\r\n");
  return bytes;
}

struct OtherFileRow {
  const char* name;
  std::string bytes;
  Text traced;  // empty: whether the bytes are a text depends on the system's code page
};
const OtherFileRow kOtherFiles[] = {
    {"empty", "", kNoLine},
    {"an empty line", "\r\n", kNoProtectedText},
    {"NUL", std::string(50, '\0'), kNoProtectedText},
    {"binary", random_bytes(), {}},
    {"empty lines", ten_lines(""), kNoProtectedText},
    {"lines of a word", ten_lines("hello"), kNoProtectedText},
    {"lines of a letter", ten_lines("x"), kNoEngine},
    {"UTF-16",
     std::string("\xff\xfe"
                 "a\0\r\0\n\0",
                 8),
     {}},
};

using OtherFile = Rows<CfpFileDamageTest, OtherFileRow>;

TEST_P(OtherFile, IsRefused) {
  const Text line = refused(GetParam().bytes);
  const Text& expected = GetParam().traced;
  EXPECT_EQ(line, expected.empty() ? line : expected);
}

INSTANTIATE_TEST_SUITE_P(, OtherFile, ::testing::ValuesIn(kOtherFiles), row_name);

TEST_F(CfpFileDamageTest, ALineWithoutEndIsGivenUpEarly) {
  static constexpr std::size_t kSize = 100u << 20, kEnough = 20u << 20;
  std::size_t taken = 0;
  thread.files.input = [&taken] { return std::make_unique<EndlessLine>(kSize, taken); };
  QVRcfp cfp;
  EXPECT_FALSE(cfp.Crear(u"id", u"F", u"a"));
  expect_cleared(cfp);
  EXPECT_GT(taken, 0u);
  EXPECT_LT(taken, kEnough);
  EXPECT_EQ(traced(), Traces{u"QVRcfp.Crear: 75 A line of the file is longer than 16 MiB"});
}

TEST_F(CfpFileDamageTest, AReadErrorIsAFalseResult) {
  struct Broken final : InputFile {
    std::size_t read(std::span<char>) override { throw RuntimeFailure(failure_number::kFile); }
  };
  thread.files.input = [] { return std::make_unique<Broken>(); };
  QVRcfp cfp;
  EXPECT_FALSE(cfp.Crear(u"id", u"F", u"a"));
  expect_cleared(cfp);
  EXPECT_EQ(traced(), Traces{u"QVRcfp.Crear: 75 Path/File access error"});
}

TEST_F(CfpFileDamageTest, AProtectionThatFailsAtAnyCallIsAFalseResult) {
  for (int failing = 1; failing <= 10; ++failing) {
    SCOPED_TRACE(failing);
    int calls = 0;
    thread.make_text_protection = [&] { return std::make_unique<FailingProtection>(failing, calls); };
    thread.renew();
    EXPECT_EQ(refused(whole), trace_of(u"QVRcfp.Crear", 429));
    EXPECT_EQ(calls, failing);
    expect_read(whole);
  }
}

TEST_F(CfpFileDamageTest, TheBuiltInProtectionNoticesEveryCharacterToo) {
  thread.make_text_protection = [] { return std::make_unique<BuiltinTextProtection>(system_platform().cryptography); };
  thread.renew();
  write_sample();
  expect_read(whole);
  for (std::size_t at = 0; at < whole.size(); at += 7) {
    std::string changed = whole;
    changed[at] = whole[at] == 'b' ? 'c' : 'b';
    refused(changed);
    ASSERT_FALSE(HasFailure()) << "byte " << at;
  }
}

}  // namespace
}  // namespace qvr::tests
