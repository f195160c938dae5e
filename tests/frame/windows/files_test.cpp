// What only this system can show of files that take another one's place.
#include <windows.h>

#include <gtest/gtest.h>

#include "frame/failure.h"
#include "frame/platform.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

Files& files() { return system_platform().files; }

TEST(WindowsFiles, ThatMustNotBeWrittenAreNotReplaced) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  const std::wstring path = folder.file(u"x.cfp").wstring();
  ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_THROW(files().create(folder.file_text(u"x.cfp")), RuntimeFailure);
  ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL));
  EXPECT_EQ(folder.read(u"x.cfp"), "former");
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
}

TEST(WindowsFiles, ThatAreInUseAreNotReplaced) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  const auto reader = files().open(folder.file_text(u"x.cfp"));
  EXPECT_THROW(files().create(folder.file_text(u"x.cfp")), RuntimeFailure);
}

TEST(WindowsFiles, AreWrittenByOneAtATime) {
  const TemporaryFolder folder;
  const auto first = files().create(folder.file_text(u"x.cfp"));
  first->write("first");
  EXPECT_THROW(files().create(folder.file_text(u"x.cfp")), RuntimeFailure);
  first->close();
  EXPECT_EQ(folder.read(u"x.cfp"), "first");
}

}  // namespace
}  // namespace qvr::tests
