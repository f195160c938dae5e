#include "session/global.h"

#include <gtest/gtest.h>

#include <thread>

#include "connection/qvrcfp.h"
#include "session/thread_state.h"
#include "support/rows.h"
#include "support/temporary_folder.h"
#include "support/test_thread.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

using tests::PrintTo;

TEST(InicializarComun, LoadsOncePerThread) {
  TestThread thread;
  thread.system.set_default_language(u"3");
  const QVRcfp first;
  EXPECT_TRUE(thread_state().idioma.Creado());
  EXPECT_EQ(thread_state().idioma.Idioma(), 3);
  const QVRcfp second;
  InicializarComun();
  EXPECT_EQ(thread.system.setting_reads, 1);
  EXPECT_EQ(thread.system.language_reads, 1);
}

TEST(InicializarComun, LeavesAChosenLanguageAlone) {
  TestThread thread;
  InicializarComun();
  thread_state().idioma.Idioma(3);
  thread.system.set_default_language(u"1");
  const QVRcfp later;
  EXPECT_EQ(thread_state().idioma.Idioma(), 3);
  EXPECT_EQ(thread_state().idioma.CI(MsgY), u"et");
}

TEST(InicializarComun, FillsTheCatalogueOfTheThread) {
  TestThread thread;
  EXPECT_EQ(thread_state().mensajes.at(MsgY, 1), u"");
  InicializarComun();
  EXPECT_EQ(thread_state().mensajes.at(MsgY, 1), u"and");
  EXPECT_EQ(thread_state().idioma.NumIdiomas(), 4);
  EXPECT_EQ(thread_state().idioma.NumMensajes(), 10);
}

struct Row {
  const char* name;
  const char16_t* setting;  // null: none
  std::uint16_t system;
  std::int32_t omision, loaded;
  bool overflows = false;
};

constexpr Row kRows[] = {
    {"none, Spanish system", nullptr, 0x0C0A, 0, 0},
    {"none, English system", nullptr, 0x0409, 1, 1},
    {"none, French system before there is a list", nullptr, 0x040C, 0, 0},
    {"none, German system before there is a list", nullptr, 0x0407, 0, 0},
    {"none, Japanese system", nullptr, 0x0411, 1, 1},
    {"French", u"3", 0x0409, 3, 3},
    {"Spanish", u"0", 0x0409, 0, 0},
    {"letters", u"abc", 0x0409, 0, 0},
    {"empty", u"", 0x0409, 0, 0},
    {"leading number", u"3 French", 0x0409, 3, 3},
    {"leading blanks", u"  1", 0x0C0A, 1, 1},
    {"half to the even one below", u"2.5", 0x0409, 2, 2},
    {"half to the even one above", u"3.5", 0x0409, 4, 0},
    {"Catalan falls back to Spanish", u"4", 0x0409, 4, 0},
    {"German falls back to English", u"8", 0x0C0A, 8, 1},
    {"negative falls back to English", u"-1", 0x0C0A, -1, 1},
    {"largest", u"2147483647", 0x0C0A, 2147483647, 1},
    {"too large", u"2147483648", 0x0409, 0, 0, true},
    {"huge", u"1E+300", 0x0409, 0, 0, true},
    {"beyond any number", u"1E+400", 0x0409, 0, 0, true},
};

using IdiomaOmisionOf = Rows<testing::Test, Row>;

TEST_P(IdiomaOmisionOf, TheSettingIsLoaded) {
  TestThread thread;
  thread.system.language = GetParam().system;
  if (GetParam().setting != nullptr) thread.system.set_default_language(GetParam().setting);
  EXPECT_EQ(IdiomaOmision(), GetParam().omision);
  InicializarComun();
  EXPECT_TRUE(thread_state().idioma.Creado());
  EXPECT_EQ(thread_state().idioma.Idioma(), GetParam().loaded);
  EXPECT_EQ(traced(), GetParam().overflows ? Traces(2, trace_of(u"Global.IdiomaOmision", 6)) : Traces());
}

INSTANTIATE_TEST_SUITE_P(, IdiomaOmisionOf, testing::ValuesIn(kRows), row_name);

TEST(IdiomaOmision, IsReadOncePerThread) {
  TestThread thread;
  thread.system.set_default_language(u"1");
  EXPECT_EQ(IdiomaOmision(), 1);
  thread.system.set_default_language(u"3");
  EXPECT_EQ(IdiomaOmision(), 1);
  EXPECT_EQ(thread.system.setting_reads, 1);
  thread.renew();
  EXPECT_EQ(IdiomaOmision(), 3);
  EXPECT_EQ(thread.system.setting_reads, 2);
}

TEST(IdiomaOmision, OffersTheSystemLanguageAsTheSettingsDefault) {
  TestThread thread;
  thread.system.language = 0x0809;
  IdiomaOmision();
  EXPECT_EQ(thread.system.last_fallback, u"1");
}

TEST(IdiomaOmision, IsSpanishWhenTheSettingsCannotBeRead) {
  TestThread thread;
  thread.system.language = 0x0409;
  thread.system.setting_fails = true;
  EXPECT_EQ(IdiomaOmision(), 0);
  InicializarComun();
  EXPECT_TRUE(thread_state().idioma.Creado());
  EXPECT_EQ(traced(), Traces(2, u"Global.IdiomaOmision: 75 Path/File access error"));
}

TEST(InicializarComun, GivesEachThreadALanguageOfItsOwn) {
  TestThread here;
  here.load_language(u"1");
  std::int32_t there_language = -1;
  std::thread([&there_language] {
    TestThread there;
    there.load_language(u"3");
    thread_state().idioma.Idioma(0);
    there_language = thread_state().idioma.Idioma();
  }).join();
  EXPECT_EQ(there_language, 0);
  EXPECT_EQ(thread_state().idioma.Idioma(), 1);
  EXPECT_EQ(here.system.setting_reads, 1);
}

TEST(ExisteArchivo, IsFalseForAnEmptyPathWithoutASearch) {
  TestThread thread;
  EXPECT_FALSE(ExisteArchivo(u"", 0));
  EXPECT_FALSE(ExisteArchivo(u"", 16));
  EXPECT_EQ(thread.files.searches, 0);
}

TEST(ExisteArchivo, IsFalseWhenTheSearchFails) {
  TestThread thread;
  thread.files.search_fails = true;
  EXPECT_FALSE(ExisteArchivo(u"any.txt", 0));
  EXPECT_EQ(thread.files.searches, 1);
  EXPECT_EQ(traced(), Traces{u"Global.ExisteArchivo: 75 Path/File access error"});
}

struct Sought {
  const char* name;
  TextView pattern;
  bool exists;
};

constexpr Sought kSought[] = {
    {"its name", u"alta 1.cfc", true},
    {"another name", u"alta 2.cfc", false},
    {"any name", u"*.cfc", true},
    {"any sign", u"alta ?.cfc", true},
    {"any sign for two", u"alta?.cfc", false},
    {"another extension", u"*.txt", false},
    {"a name with brackets", u"a\u00f1o[1].cfc", true},
    {"another folder", u"nowhere\\alta 1.cfc", false},
    {"brackets are no list", u"alta [1].cfc", false},
    {"brackets are part of a name", u"a\u00f1o1.cfc", false},
};

using ExisteArchivoOf = Rows<testing::Test, Sought>;

TEST_P(ExisteArchivoOf, FindsFilesByNameAndPattern) {
  TestThread thread;
  const TemporaryFolder folder;
  folder.write(u"alta 1.cfc", "x");
  folder.write(u"a\u00f1o[1].cfc", "x");
  EXPECT_EQ(ExisteArchivo(folder.file_text(GetParam().pattern), 0), GetParam().exists);
}

INSTANTIATE_TEST_SUITE_P(, ExisteArchivoOf, testing::ValuesIn(kSought), row_name);

TEST(ExisteArchivo, FindsFoldersOnlyWhenTheMaskAsksForThem) {
  TestThread thread;
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.file(u"inner"));
  EXPECT_FALSE(ExisteArchivo(folder.file_text(u"inner"), 0));
  EXPECT_TRUE(ExisteArchivo(folder.file_text(u"inner"), 16));
  EXPECT_FALSE(ExisteArchivo(folder.file_text(u"inn*"), 0));
  EXPECT_TRUE(ExisteArchivo(folder.file_text(u"inn*"), 16));
  folder.write(u"file.txt", "");
  EXPECT_TRUE(ExisteArchivo(folder.file_text(u"file.txt"), 16));
}

}  // namespace
}  // namespace qvr::tests
