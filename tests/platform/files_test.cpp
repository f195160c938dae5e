// The system's own files, as the library uses them.
#include <gtest/gtest.h>

#include <array>

#include "base/failure.h"
#include "platform/platform.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

Files& files() { return system_platform().files; }

std::string read_all(InputFile& file) {
  std::string bytes;
  std::array<char, 1000> buffer;
  for (;;) {
    const std::size_t count = file.read(buffer);
    bytes.append(buffer.data(), count);
    if (count < buffer.size()) return bytes;
  }
}

TEST(SystemFiles, GiveBackTheBytesThatWereWritten) {
  const TemporaryFolder folder;
  std::string bytes;
  for (int i = 0; i < 300000; ++i) bytes.push_back(static_cast<char>(i * 7 % 256));
  const auto out = files().create(folder.file_text(u"datos \u00f1.bin"));
  out->write(bytes);
  out->write("");
  out->write("end\r\n");
  out->close();
  EXPECT_EQ(folder.read(u"datos \u00f1.bin"), bytes + "end\r\n");
  EXPECT_EQ(read_all(*files().open(folder.file_text(u"datos \u00f1.bin"))), bytes + "end\r\n");
}

TEST(SystemFiles, ReplaceAFileThatIsThere) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "something long that was there before");
  const auto out = files().create(folder.file_text(u"x.cfp"));
  out->write("short");
  out->close();
  EXPECT_EQ(folder.read(u"x.cfp"), "short");
}

TEST(SystemFiles, LeaveAFileAloneUntilTheNewOneIsWhole) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  {
    const auto given_up = files().create(folder.file_text(u"x.cfp"));
    given_up->write("part of it");
    EXPECT_EQ(folder.read(u"x.cfp"), "former");
  }
  EXPECT_EQ(folder.read(u"x.cfp"), "former");
  EXPECT_EQ(folder.read(u"x.cfp.tmp"), "part of it");
  const auto out = files().create(folder.file_text(u"x.cfp"));
  out->write("new");
  out->close();
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
}

TEST(SystemFiles, HaveNoNewFileUntilItIsWhole) {
  const TemporaryFolder folder;
  const auto out = files().create(folder.file_text(u"x.cfp"));
  out->write("new");
  EXPECT_THROW(files().open(folder.file_text(u"x.cfp")), RuntimeFailure);
  out->close();
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
}

TEST(SystemFiles, OfWhichNothingWasWrittenLeaveNothingBehind) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  files().create(folder.file_text(u"x.cfp"));
  files().create(folder.file_text(u"y.cfp"));
  EXPECT_EQ(folder.read(u"x.cfp"), "former");
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
}

TEST(SystemFiles, AreWrittenInPlaceWhereNothingCanStandBeside) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.file(u"x.cfp.tmp"));
  folder.write(u"x.cfp", "former and longer");
  const auto out = files().create(folder.file_text(u"x.cfp"));
  EXPECT_EQ(folder.read(u"x.cfp"), "former and longer") << "nothing has been written";
  out->write("new");
  out->close();
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
}

TEST(SystemFiles, RefuseWhatCannotBeOpened) {
  const TemporaryFolder folder;
  folder.write(u"plain", "");
  EXPECT_THROW(files().open(folder.file_text(u"missing")), RuntimeFailure);
  EXPECT_THROW(files().open(folder.file_text(u"missing\\x")), RuntimeFailure);
  EXPECT_THROW(files().create(folder.file_text(u"missing\\x")), RuntimeFailure);
  EXPECT_THROW(files().create(folder.file_text(u"plain\\x")), RuntimeFailure);
  EXPECT_THROW(files().create(folder.text()), RuntimeFailure);
  EXPECT_THROW(files().open(u""), RuntimeFailure);
}

TEST(SystemFiles, DoNotCutAPathAtAZeroUnit) {
  const TemporaryFolder folder;
  folder.write(u"x", "inside");
  const Text path = folder.file_text(u"x") + Text(1, u'\0') + u"y";
  EXPECT_THROW(files().open(path), RuntimeFailure);
  EXPECT_THROW(files().create(path), RuntimeFailure);
  EXPECT_EQ(folder.read(u"x"), "inside");
}

TEST(SystemPage, KeepsOrRefusesEveryCharacter) {
  for (std::uint32_t unit = 1; unit < 0xD800; ++unit) {
    const Text text{u'a', static_cast<char16_t>(unit), u'z'};
    std::string bytes;
    try {
      bytes = files().to_system_page(text);
    } catch (const RuntimeFailure&) {
      continue;
    }
    ASSERT_EQ(files().from_system_page(bytes), text) << "unit " << unit;
  }
}

TEST(SystemPage, HasAllOfAscii) {
  Text ascii;
  for (char16_t unit = 1; unit < 0x80; ++unit) ascii.push_back(unit);
  EXPECT_EQ(files().from_system_page(files().to_system_page(ascii)), ascii);
  EXPECT_EQ(files().to_system_page(u"abc\r\n"), "abc\r\n");
  EXPECT_EQ(files().to_system_page(u""), "");
  EXPECT_EQ(files().from_system_page(""), u"");
}

}  // namespace
}  // namespace qvr::tests
