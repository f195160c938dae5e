// Atomic replacement of files on Windows.
#include <windows.h>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "platform/platform.h"
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

TEST(WindowsFiles, ThatNobodyElseMayWriteAreNotReplaced) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  const HANDLE reader = CreateFileW(folder.file(u"x.cfp").wstring().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(reader, INVALID_HANDLE_VALUE);
  EXPECT_THROW(files().create(folder.file_text(u"x.cfp")), RuntimeFailure);
  EXPECT_TRUE(CloseHandle(reader));
  EXPECT_EQ(folder.read(u"x.cfp"), "former");
}

// It cannot be renamed then.
TEST(WindowsFiles, ThatAReaderKeepsOpenAreWrittenInTheirPlace) {
  const TemporaryFolder folder;
  for (const std::string former : {"former", "former and longer than the new one"}) {
    folder.write(u"x.cfp", former);
    const auto reader = files().open(folder.file_text(u"x.cfp"));
    const auto out = files().create(folder.file_text(u"x.cfp"));
    out->write("new and whole");
    EXPECT_EQ(folder.read(u"x.cfp"), former);
    out->close();
    EXPECT_EQ(folder.read(u"x.cfp"), "new and whole");
    EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
  }
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
