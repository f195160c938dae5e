// Scripts whose names are no UTF-8, where file names are bytes.
#include "qvrscript/check/passed_over.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/utf8.h"
#include "support/temporary_folder.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

class PassedOver : public testing::Test {
 protected:
  void write(const std::string& name) const {
    std::ofstream(folder.file(u".").parent_path() / name) << "select 1\r\nGO\r\n";
  }

  TemporaryFolder folder;
};

TEST_F(PassedOver, AreScriptsWithAnotherName) {
  write("a\xF3SQL1.cfc");
  write("a\xF3SQL1.CFC");
  write("a\xF3SQL1.txt");
  write("a\xC3\xB3SQL1.cfc");
  std::filesystem::create_directory(folder.file(u".").parent_path() / "b\xF3SQL1.cfc");
  const auto names = script_tool::names_passed_over(folder.text());
  ASSERT_EQ(names.size(), 2u);
  EXPECT_TRUE(equal_no_case(names[0], u"a\\xf3SQL1.cfc"));
  EXPECT_TRUE(equal_no_case(names[1], u"a\\xf3SQL1.cfc"));
  EXPECT_TRUE(script_tool::names_passed_over(join({folder.text(), u"/none"})).empty());
}

TEST_F(PassedOver, AreFound) {
  write("a\xF3SQL1.cfc");
  const ToolAnswer answer = run_tool({u"check", u"--quiet", folder.text()});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.err, "");
  EXPECT_EQ(answer.out, to_utf8(folder.text()) +
                            "/a\\xf3SQL1.cfc: error: the name of this file is no UTF-8, and the library passes over "
                            "it: give it another name [name-not-utf8]\n");
}

}  // namespace
}  // namespace qvr::tests
