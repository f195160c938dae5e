// Atomic replacement of files on posix.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>

#include "base/failure.h"
#include "platform/platform.h"
#include "support/rows.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

Files& files() { return system_platform().files; }

// Nobody is at the other end of any of these, so that opening one would wait, or they are no file at all.
void make_pipe(const std::string& path) { ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0); }
void make_folder(const std::string& path) { ASSERT_EQ(::mkdir(path.c_str(), 0700), 0); }
void link_to_device(const std::string& path) { ASSERT_EQ(::symlink("/dev/zero", path.c_str()), 0); }
void link_to_sink(const std::string& path) { ASSERT_EQ(::symlink("/dev/null", path.c_str()), 0); }
void make_socket(const std::string& path) {
  const int number = ::socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(path.size(), sizeof address.sun_path);
  std::ranges::copy(path, address.sun_path);
  EXPECT_EQ(::bind(number, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  ::close(number);
}

struct NoFileRow {
  const char* name;
  void (*make)(const std::string& path);
};
const NoFileRow kNoFiles[] = {
    {"pipe", make_pipe},
    {"folder", make_folder},
    {"endless device", link_to_device},
    {"device that takes everything", link_to_sink},
    {"socket", make_socket},
};

using NoFile = Rows<::testing::Test, NoFileRow>;

TEST_P(NoFile, IsRefusedWithoutWaiting) {
  const TemporaryFolder folder;
  GetParam().make(folder.file(u"x.cfp"));
  EXPECT_THROW(files().open(folder.file_text(u"x.cfp")), RuntimeFailure);
  EXPECT_THROW(files().create(folder.file_text(u"x.cfp")), RuntimeFailure);
  EXPECT_EQ(files().names(folder.text()), std::vector<Text>()) << "nor is anything left beside it";
}

INSTANTIATE_TEST_SUITE_P(, NoFile, ::testing::ValuesIn(kNoFiles), row_name);

TEST(NativeFiles, KeepTheirPermissionsWhenTheyAreReplaced) {
  const TemporaryFolder folder;
  for (const mode_t permissions : {mode_t{0600}, mode_t{0640}, mode_t{0666}}) {
    folder.write(u"x.cfp", "former");
    ASSERT_EQ(::chmod(folder.file(u"x.cfp").c_str(), permissions), 0);
    const auto out = system_platform().files.create(folder.file_text(u"x.cfp"));
    out->write("new");
    out->close();
    struct stat entry {};
    ASSERT_EQ(::stat(folder.file(u"x.cfp").c_str(), &entry), 0);
    EXPECT_EQ(entry.st_mode & 07777, permissions);
    EXPECT_EQ(folder.read(u"x.cfp"), "new");
  }
}

void save(TextView path, std::string_view bytes) {
  const auto out = files().create(path);
  out->write(bytes);
  out->close();
}

TEST(NativeFiles, KeepTheirOwner) {
  const TemporaryFolder folder;
  folder.write(u"x.cfp", "former");
  const bool may_give_away = ::geteuid() == 0;
  const uid_t owner = may_give_away ? 1234 : ::geteuid();
  ASSERT_EQ(::chown(folder.file(u"x.cfp").c_str(), owner, owner), 0);
  save(folder.file_text(u"x.cfp"), "new");
  struct stat entry {};
  ASSERT_EQ(::stat(folder.file(u"x.cfp").c_str(), &entry), 0);
  EXPECT_EQ(entry.st_uid, owner);
  EXPECT_EQ(folder.read(u"x.cfp"), "new");
}

TEST(NativeFiles, ThatLinksLeadToAreReplacedAtTheirOwnPlace) {
  const TemporaryFolder folder;
  namespace fs = std::filesystem;
  fs::create_directory(folder.file(u"sub"));
  fs::create_symlink("sub/target", folder.file(u"x.cfp"));
  for (const std::string_view bytes : {"made behind a link to nothing", "new"}) {
    save(folder.file_text(u"x.cfp"), bytes);
    EXPECT_TRUE(fs::is_symlink(folder.file(u"x.cfp")));
    EXPECT_EQ(folder.read(u"sub/target"), bytes);
    EXPECT_EQ(files().names(folder.text()), std::vector<Text>{u"x.cfp"});
    EXPECT_EQ(files().names(folder.file_text(u"sub")), std::vector<Text>{u"target"});
  }
}

}  // namespace
}  // namespace qvr::tests
