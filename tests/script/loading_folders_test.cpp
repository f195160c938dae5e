// Invalid folders and files, in memory and on disk.
#include "script/loading_fixture.h"
#include "support/temporary_folder.h"
#include "support/traced.h"

namespace qvr::tests {
namespace {

const Lines kOnlyFailed = {"Terminado: False"};

class LoadingFoldersTest : public LoadingTest {};

TEST_F(LoadingFoldersTest, AFolderThatCannotBeListedIsAFailure) {
  put_names({u"GestionSQL1.cfc", u"Gestion10024a10025SQL.cfc"});
  thread.files.search_fails = true;
  EXPECT_EQ(definition(), u"");
  EXPECT_EQ(taken(), kOnlyFailed);
  EXPECT_EQ(update(10024), u"");
  EXPECT_EQ(taken(), kOnlyFailed);
  EXPECT_EQ(traced(), (Traces{u"QVRScr.CargarDefinicion: 75 Path/File access error",
                              u"Global.ExisteArchivo: 75 Path/File access error",
                              u"QVRScr.CargarActualizacion: 75 No update script begins with this version"}));
}

// An installation without them would lack tables, and answer as if it were whole.
TEST_F(LoadingFoldersTest, HiddenFilesAreFilesLikeOthers) {
  put_names({u"GestionSQL1.cfc", u"GestionSQL2.cfc", u"Gestion10024a10025SQL.cfc", u"Gestion10025a10026SQL.cfc"});
  for (TextView name : {u"GestionSQL2.cfc", u"Gestion10024a10025SQL.cfc"}) thread.files.hidden.insert(path(name));
  EXPECT_EQ(definition(), joined({u"GestionSQL1.cfc", u"GestionSQL2.cfc"}));
  EXPECT_EQ(update(10024), joined({u"Gestion10024a10025SQL.cfc", u"Gestion10025a10026SQL.cfc"}));
}

TEST_F(LoadingFoldersTest, AFileThatVanishesBeforeItIsReadEndsTheLoading) {
  const auto vanish = [&] { thread.files.memory.erase(path(u"GestionSQL2.cfc")); };
  put_names({u"GestionSQL1.cfc", u"GestionSQL2.cfc", u"GestionSQL3.cfc"});
  events.on_progress = vanish;
  EXPECT_EQ(definition(), u"");
  EXPECT_EQ(taken(), together({file_lines(u"GestionSQL1.cfc"), file_lines(u"GestionSQL2.cfc"), kOnlyFailed}));
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarDefinicion: 75 Path/File access error"});
}

TEST_F(LoadingFoldersTest, AFileThatComesAfterTheListingIsNotRead) {
  put_names({u"GestionSQL1.cfc"});
  events.on_progress = [&] { put(u"GestionSQL2.cfc", "late"); };
  EXPECT_EQ(definition(), joined({u"GestionSQL1.cfc"}));
  events.on_progress = nullptr;
  EXPECT_EQ(definition(), joined({u"GestionSQL1.cfc", u"late"}));
}

TEST_F(LoadingFoldersTest, AnUpdateVanishingEndsItAsWell) {
  put_names({u"Gestion10024a10025SQL.cfc", u"Gestion10025a10026SQL.cfc"});
  events.on_progress = [&] { thread.files.memory.erase(path(u"Gestion10025a10026SQL.cfc")); };
  EXPECT_EQ(update(10024), u"");
  EXPECT_EQ(taken(), together({file_lines(u"Gestion10024a10025SQL.cfc"), file_lines(u"Gestion10025a10026SQL.cfc"),
                               kOnlyFailed}));
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarActualizacion: 75 Path/File access error"});
}

TEST_F(LoadingFoldersTest, AFileWithoutTextEndsTheLoading) {
  for (const char* bytes : {"", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"}) {
    SCOPED_TRACE(testing::PrintToString(bytes));
    put(u"GestionSQL1.cfc", "first");
    put(u"GestionSQL2.cfc", bytes);
    put(u"GestionSQL3.cfc", "third");
    EXPECT_EQ(definition(), u"");
    EXPECT_EQ(taken(), together({file_lines(u"GestionSQL1.cfc"), file_lines(u"GestionSQL2.cfc"), kOnlyFailed}));
    put(u"Gestion10024a10025SQL.cfc", bytes);
    EXPECT_EQ(update(10024), u"");
    EXPECT_EQ(taken(), together({file_lines(u"Gestion10024a10025SQL.cfc"), kOnlyFailed}));
  }
  EXPECT_EQ(traced(), (Traces{u"QVRScr.CargarDefinicion: 75 Path/File access error",
                              u"QVRScr.CargarActualizacion: 75 Path/File access error",
                              u"QVRScr.CargarDefinicion: 75 Path/File access error",
                              u"QVRScr.CargarActualizacion: 75 Path/File access error",
                              u"QVRScr.CargarDefinicion: 75 Path/File access error",
                              u"QVRScr.CargarActualizacion: 75 Path/File access error",
                              u"QVRScr.CargarDefinicion: 75 Path/File access error",
                              u"QVRScr.CargarActualizacion: 75 Path/File access error"}));
}

TEST_F(LoadingFoldersTest, AnEmptyFileOfAnEarlierVersionIsNotRead) {
  put(u"Gestion10023a10024SQL.cfc", "");
  put(u"Gestion10024a10025SQL.cfc", "text");
  EXPECT_EQ(update(10024), u"text\r\n");
}

TEST_F(LoadingFoldersTest, BlankLinesAreText) {
  put(u"GestionSQL1.cfc", "\n");
  put(u"GestionSQL2.cfc", " ");
  EXPECT_EQ(definition(), u"\r\n\r\n \r\n");
}

// The system's own files from here on.
class LoadingFromDiskTest : public ScriptTest {
 protected:
  Text definition(TextView ruta, TextView name = u"Gestion") {
    return runner.CargarDefinicion(id, Engine::SqlServer, ruta, name, ScriptAccounts(), false);
  }
  Text update(TextView ruta, std::int32_t version, TextView application = u"Gestion") {
    return runner.CargarActualizacion(id, Engine::SqlServer, ruta, application, version, ScriptAccounts(), false);
  }
  void fill(TextView subfolder) const {
    folder.write(join({subfolder, u"GestionSQL2.cfc"}), "second");
    folder.write(join({subfolder, u"GestionSQL1.cfc"}), "first\n");
    folder.write(join({subfolder, u"GestionSQL10.cfc"}), "other");
    folder.write(join({subfolder, u"Gestion10024a10025SQL.cfc"}), "update");
  }

  TemporaryFolder folder;
};

TEST_F(LoadingFromDiskTest, AFolderOfScripts) {
  fill(u"");
  EXPECT_EQ(definition(folder.text()), u"first\r\n\r\nsecond\r\n");
  EXPECT_EQ(update(folder.text(), 10024), u"update\r\n");
  EXPECT_EQ(update(folder.text(), 10025), u"");
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarActualizacion: 75 No update script begins with this version"});
}

TEST_F(LoadingFromDiskTest, FoldersWithOtherNames) {
  for (const TextView name : {u"con espacios", u"[1-9]", u"a[b", u"espa\u00f1a \u65e5", u"punto.cfc", u"{x},!"}) {
    SCOPED_TRACE(to_utf8(name));
    std::filesystem::create_directory(folder.file(name));
    fill(join({name, u"/"}));
    EXPECT_EQ(definition(folder.file_text(name)), u"first\r\n\r\nsecond\r\n");
    EXPECT_EQ(definition(join({folder.file_text(name), u"\\"})), u"first\r\n\r\nsecond\r\n");
    EXPECT_EQ(update(folder.file_text(name), 10024), u"update\r\n");
  }
}

TEST_F(LoadingFromDiskTest, NoFolderNoText) {
  fill(u"");
  const Text inside = join({folder.text(), Text(1, u'\0'), u"x"});
  for (const Text& ruta : {folder.file_text(u"missing"), folder.file_text(u"missing\\deeper"),
                           folder.file_text(u"GestionSQL1.cfc"), folder.file_text(u"*"), inside}) {
    SCOPED_TRACE(to_utf8(ruta));
    EXPECT_EQ(definition(ruta), u"");
    EXPECT_EQ(taken(), kOnlyFailed);
    EXPECT_EQ(traced(), Traces{trace_of(u"QVRScr.CargarDefinicion", 75)});
    EXPECT_EQ(update(ruta, 10024), u"");
    EXPECT_EQ(taken(), kOnlyFailed);
    Traces failures = {u"QVRScr.CargarActualizacion: 75 No update script begins with this version"};
    if (ruta == inside) failures.insert(failures.begin(), trace_of(u"Global.ExisteArchivo", 75));  // no path at all
    EXPECT_EQ(traced(), failures);
  }
}

TEST_F(LoadingFromDiskTest, AFolderIsNoScriptWhateverItsName) {
  fill(u"");
  std::filesystem::create_directory(folder.file(u"GestionSQL3.cfc"));
  std::filesystem::create_directory(folder.file(u"Gestion10025a10026SQL.cfc"));
  EXPECT_EQ(definition(folder.text()), u"first\r\n\r\nsecond\r\n");
  EXPECT_EQ(update(folder.text(), 10024), u"update\r\n");
  folder.write(u"Gestion10026a10027SQL.cfc", "later");
  EXPECT_EQ(update(folder.text(), 10024), u"update\r\nlater\r\n");
  EXPECT_EQ(update(folder.text(), 10025), u"") << "no file begins with this version";
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarActualizacion: 75 No update script begins with this version"});
}

TEST_F(LoadingFromDiskTest, NamesInAnotherCaseAndWithAccents) {
  folder.write(u"GESTI\u00d3Nsql1.CFC", "one");
  folder.write(u"gesti\u00f3nSQL2.cfc", "two");
  EXPECT_EQ(definition(folder.text(), u"Gesti\u00f3n"), u"one\r\ntwo\r\n");
  EXPECT_EQ(definition(folder.text(), u"Gesti?n"), u"one\r\ntwo\r\n");
  EXPECT_EQ(definition(folder.text(), u"Gestion"), u"");
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarDefinicion: 75 No script file has such a name"});
}

TEST_F(LoadingFromDiskTest, UpdatesInAnotherCase) {
  folder.write(u"GESTI\u00d3N10024A10025sql.CFC", "one");
  EXPECT_EQ(update(folder.text(), 10024, u"Gesti\u00f3n"), u"one\r\n");
  EXPECT_EQ(update(folder.text(), 10025, u"Gesti\u00f3n"), u"");
  EXPECT_EQ(traced(), Traces{u"QVRScr.CargarActualizacion: 75 No update script begins with this version"});
}

}  // namespace
}  // namespace qvr::tests
