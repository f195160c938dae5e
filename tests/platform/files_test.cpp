// The system's own files, as the library uses them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <thread>

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

void save(TextView path, std::string_view bytes) {
  const auto out = files().create(path);
  out->write(bytes);
  out->close();
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
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"}) << "a part serves nobody";
  save(folder.file_text(u"x.cfp"), "new");
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
}

TEST(SystemFiles, TakeNobodysNameWhileTheyAreWritten) {
  const TemporaryFolder folder;
  const std::vector<Text> foreign = {u"x.cfp.0A1B2C3D.tmp",     u"x.cfp.bak",
                                     u"x.cfp.qvr0A1B2C3.tmp",   u"x.cfp.qvr0A1B2C3D.tmp.bak",
                                     u"x.cfp.qvr0A1B2C3X.tmp",  u"x.cfp.qvr0A1B2C3D4.tmp",
                                     u"x.cfp.qvr_del_jefe.tmp", u"x.cfp.tmp",
                                     u"xx.cfp.qvr0A1B2C3D.tmp", u"y.cfp.qvr0A1B2C3D.tmp"};
  for (const Text& name : foreign) folder.write(name, "a user's");
  save(folder.file_text(u"x.cfp"), "new");
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
  for (const Text& name : foreign) EXPECT_EQ(folder.read(name), "a user's");
}

TEST(SystemFiles, TakeAwayWhatEndedProcessesLeft) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  for (TextView left : {u"x.cfp.qvr00000000.tmp", u"x.cfp.qvr0A1B2C3D.tmp"}) folder.write(left, "part of it");
  save(folder.file_text(u"x.cfp"), "new");
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
}

TEST(SystemFiles, AreLeftToOthersWhoAreWritingThem) {
  const TemporaryFolder folder;
  const auto first = files().create(folder.file_text(u"x.cfp"));
  first->write("first");
  save(folder.file_text(u"x.cfp"), "second");
  EXPECT_EQ(folder.read(u"x.cfp"), "second");
  EXPECT_EQ(files().names(folder.text()).size(), 2u);
  first->close();
  EXPECT_EQ(folder.read(u"x.cfp"), "first");
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
}

// How often one of so many savings failed.
int failures_of_saving(TextView path, const std::string& bytes) {
  int failures = 0;
  for (int i = 0; i < 40; ++i) {
    try {
      save(path, bytes);
    } catch (const RuntimeFailure&) {
      ++failures;
    }
  }
  return failures;
}

void expect_savings_side_by_side(const TemporaryFolder& folder, TextView first_name, TextView second_name) {
  const std::string first(20000, 'a'), second(100, 'b');
  int failures = -1;
  std::thread other([&] { failures = failures_of_saving(folder.file_text(second_name), second); });
  EXPECT_EQ(failures_of_saving(folder.file_text(first_name), first), 0);
  other.join();
  EXPECT_EQ(failures, 0);
  const std::string last = folder.read(first_name);
  EXPECT_TRUE(last == first || last == second) << last.size();
}

TEST(SystemFiles, CanBeSavedByTwoAtOnce) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  expect_savings_side_by_side(folder, u"x.cfp", u"x.cfp");
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
}

TEST(SystemFiles, KeepTheirHardLinks) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former and longer");
  std::filesystem::create_hard_link(folder.file(u"x.cfp"), folder.file(u"y.cfp"));
  save(folder.file_text(u"x.cfp"), "new");
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
  EXPECT_EQ(folder.read(u"y.cfp"), "new");
  save(folder.file_text(u"y.cfp"), "newer");
  EXPECT_EQ(folder.read(u"x.cfp"), "newer");
  auto names = files().names(folder.text());
  std::ranges::sort(names);
  EXPECT_EQ(names, (std::vector<Text>{u"x.cfp", u"y.cfp"}));
}

TEST(SystemFiles, WithHardLinksCanBeSavedByTwoAtOnce) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  std::filesystem::create_hard_link(folder.file(u"x.cfp"), folder.file(u"y.cfp"));
  expect_savings_side_by_side(folder, u"x.cfp", u"y.cfp");
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

// A longer name than this one no file can have.
TEST(SystemFiles, AreWrittenInPlaceWhereNothingCanStandBeside) {
  const TemporaryFolder folder;
  const Text name = join({Text(245, u'n'), u".cfp"});
  folder.write(name, "former and longer");
  const auto out = files().create(folder.file_text(name));
  EXPECT_EQ(folder.read(name), "former and longer") << "nothing has been written";
  out->write("new");
  out->close();
  EXPECT_EQ(folder.read(name), "new");
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
