// The native build's per-user settings: one file per value.
#include <gtest/gtest.h>

#include "platform/platform.h"
#include "platform/posix/environment_variable.h"
#include "support/temporary_folder.h"

namespace qvr::tests {
namespace {

Text read() { return system_platform().system.setting(u"QVR", u"Idioma", u"IdiomaOmision", u"fallback"); }

class NativeSettingsTest : public ::testing::Test {
 protected:
  void write(std::string_view bytes, TextView root = u"") {
    const Text folder = Text(root) + u"QVR/Idioma";
    std::filesystem::create_directories(home.file(folder));
    home.write(folder + u"/IdiomaOmision", bytes);
  }

  TemporaryFolder home;
};

TEST_F(NativeSettingsTest, AreFilesBelowTheConfigurationFolder) {
  const EnvironmentVariable folder("XDG_CONFIG_HOME", home.file(u"").string());
  EXPECT_EQ(read(), u"fallback");
  write("3");
  EXPECT_EQ(read(), u"3");
  write("1\r\n");
  EXPECT_EQ(read(), u"1");
  write("");
  EXPECT_EQ(read(), u"");
  write("\xff");
  EXPECT_EQ(read(), u"fallback");
}

TEST_F(NativeSettingsTest, AreBelowTheHomeFolderWithoutOne) {
  const EnvironmentVariable none("XDG_CONFIG_HOME", std::nullopt), user("HOME", home.file(u"").string());
  EXPECT_EQ(read(), u"fallback");
  write("2", u".config/");
  EXPECT_EQ(read(), u"2");
}

}  // namespace
}  // namespace qvr::tests
