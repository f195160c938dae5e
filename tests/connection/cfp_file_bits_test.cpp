// Every single-bit error in a protected file.
#include <gtest/gtest.h>

#include "connection/qvrcfp.h"
#include "connection/sample_parameters.h"
#include "services/builtin_text_protection.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

bool is_letter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

// The check line is compared case-insensitively, so that its case bits may change; no value depends on them.
bool says_nothing(const std::string& bytes, std::size_t at, int bit) {
  const std::size_t check_line = bytes.rfind("\r\n", bytes.size() - 3) + 2;
  return at >= check_line && bit == 5 && is_letter(bytes[at]);
}

TEST(CfpFileBits, EachThatSaysSomethingIsRefused) {
  expect_any_traces();
  TestThread thread;
  thread.make_text_protection = [&] {
    return std::make_unique<services::BuiltinTextProtection>(thread_state().platform().cryptography);
  };
  thread.files.keep_in_memory();
  QVRcfp writer;
  writer.Asignar(u"id", sample_parameters());
  ASSERT_TRUE(writer.Guardar(u"id", u"F", u"a"));
  const std::string whole = thread.files.memory[u"F\\a.cfp"];
  int refused = 0, read = 0;
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string& damaged = thread.files.memory[u"F\\a.cfp"];
      damaged = whole;
      damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit));
      QVRcfp reader;
      const bool opened = reader.Crear(u"id", u"F", u"a");
      ASSERT_EQ(opened, says_nothing(whole, at, bit)) << "byte " << at << ", bit " << bit;
      if (opened) expect_parameters(reader, sample_parameters(), u"a");
      ++(opened ? read : refused);
    }
  }
  EXPECT_EQ(static_cast<std::size_t>(refused + read), whole.size() * 8);
  EXPECT_GT(refused, 20 * read);
}

}  // namespace
}  // namespace qvr::tests
