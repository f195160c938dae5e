#include "session/ov.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/platform.h"
#include "support/rows.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

TEST(Ov, KnowsThisBuildsNumbers) {
  const VersionNumbers own = own_version();
  EXPECT_EQ(own.major, 2);
  EXPECT_EQ(own.minor, 10);
  EXPECT_EQ(own.revision, 24);
}

struct Version {
  const char* name;
  VersionNumbers numbers;
  std::int32_t version;
  TextView text;
};

constexpr Version kVersions[] = {
    {"this one", {2, 10, 24}, 21024, u"2.10.24"},
    {"numbers of one digit", {3, 0, 5}, 30005, u"3.00.05"},
    {"revision of three digits", {2, 10, 124}, 210124, u"2.10.124"},
    {"revision only", {0, 0, 1}, 1, u"0.00.01"},
    {"major of two digits", {12, 3, 0}, 120300, u"12.03.00"},
    {"minor of three digits", {1, 100, 7}, 110007, u"1.100.07"},
    {"last revision of two digits", {2, 10, 99}, 21099, u"2.10.99"},
    {"revision of four digits", {2, 10, 1234}, 2101234, u"2.10.1234"},
};

using OvVersion = Rows<testing::Test, Version>;

TEST_P(OvVersion, IsWrittenAsNumberAndText) {
  EXPECT_EQ(Ov::Version(GetParam().numbers), GetParam().version);
  EXPECT_EQ(Ov::CadenaVersion(GetParam().numbers), Text(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(, OvVersion, testing::ValuesIn(kVersions), row_name);

struct Module {
  const char* name;
  TextView file, folder, whole;
};

constexpr Module kModules[] = {
    {"usual", u"C:\\App\\QVRlib21.dll", u"C:\\App", u"C:\\App\\QVRlib21.dll"},
    {"other extension", u"C:\\App\\QVRlib21.ocx", u"C:\\App", u"C:\\App\\QVRlib21.dll"},
    {"upper-case extension", u"C:\\App\\QVRLIB21.DLL", u"C:\\App", u"C:\\App\\QVRLIB21.dll"},
    {"no extension", u"C:\\App\\library", u"C:\\App", u"C:\\App\\library.dll"},
    {"point in the folder only", u"C:\\App.2\\library", u"C:\\App.2", u"C:\\App.2\\library.dll"},
    {"two points", u"C:\\App\\a.b.ocx", u"C:\\App", u"C:\\App\\a.b.dll"},
    {"drive root", u"C:\\QVRlib21.dll", u"C:", u"C:\\QVRlib21.dll"},
    {"network folder", u"\\\\server\\share\\x.dll", u"\\\\server\\share", u"\\\\server\\share\\x.dll"},
    {"other separators", u"/opt/app/library.so", u"/opt/app", u"/opt/app\\library.dll"},
    {"blanks and accents", u"C:\\A\u00f1o 1\\x y.dll", u"C:\\A\u00f1o 1", u"C:\\A\u00f1o 1\\x y.dll"},
    {"no folder", u"QVRlib21.dll", u"", u"\\QVRlib21.dll"},
    {"nothing", u"", u"", u"\\.dll"},
};

using OvPath = Rows<testing::Test, Module>;

TEST_P(OvPath, IsTheFolderAndTheWholeOneTheLibrarysFile) {
  EXPECT_EQ(Ov::Path(GetParam().file), Text(GetParam().folder));
  EXPECT_EQ(Ov::PathCompleto(GetParam().file), Text(GetParam().whole));
}

INSTANTIATE_TEST_SUITE_P(, OvPath, testing::ValuesIn(kModules), row_name);

TEST(Ov, FindsTheFolderOfThisProgram) {
  const Text file = system_platform().system.module_path();
  EXPECT_TRUE(std::filesystem::is_regular_file(std::filesystem::path(file)));
  const Text folder = Ov::Path(file);
  EXPECT_TRUE(std::filesystem::is_directory(std::filesystem::path(folder)));
  EXPECT_TRUE(Ov::PathCompleto(file).starts_with(folder + u"\\qvr_tests"));
  EXPECT_TRUE(Ov::PathCompleto(file).ends_with(u".dll"));
}

}  // namespace
}  // namespace qvr::tests
