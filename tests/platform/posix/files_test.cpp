// Atomic replacement of files on posix.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/platform.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

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

}  // namespace
}  // namespace qvr::tests
