#include <filesystem>

#include "cfp/cfp_fixture.h"
#include "qvrscript/output/json.h"

namespace qvr::tests {
namespace {

using script_tool::Json;

class CfpNew : public CfpCommands {
 protected:
  CfpNew() {
    played.variables[u"ADM"] = u"admin-password";
    played.variables[u"CLI"] = u"";
  }
  const std::vector<Text> all{u"--engine",
                              u"sqlserver",
                              u"--provider",
                              u"SQLOLEDB",
                              u"--data-source",
                              u"SRV01\\A",
                              u"--catalog",
                              u"Gesti\u00f3n",
                              u"--admin-user",
                              u"sa",
                              u"--admin-password-env",
                              u"ADM",
                              u"--client-user",
                              u"app",
                              u"--client-password-env",
                              u"CLI",
                              u"--other",
                              u"Mode=Read"};
};

TEST_F(CfpNew, WritesWhatTheLibraryReads) {
  const ToolAnswer answer = cfp(u"new", all);
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, path() + ": written (SQL Server)\n");
  EXPECT_EQ(answer.err, "");
  QVRcfp file;
  ASSERT_TRUE(file.Crear(kId, folder.text(), u"shop"));
  EXPECT_EQ(file.MotorBD(), Engine::SqlServer);
  EXPECT_EQ(file.Provider(), u"SQLOLEDB");
  EXPECT_EQ(file.DataSource(), u"SRV01\\A");
  EXPECT_EQ(file.InitialCatalogOTablespace(), u"Gesti\u00f3n");
  EXPECT_EQ(file.UsuarioAdm(), u"sa");
  EXPECT_EQ(file.ClaveAdm(kId), u"admin-password");
  EXPECT_EQ(file.UsuarioCli(), u"app");
  EXPECT_EQ(file.ClaveCli(kId), u"");
  EXPECT_EQ(file.OtrosParametros(), u"Mode=Read");
}

TEST_F(CfpNew, LeavesAFileThatIsThere) {
  folder.write(u"shop.cfp", "former");
  const ToolAnswer answer = cfp(u"new", all);
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "qvrscript: " + path() + ": exists already; --replace writes it anew\n");
  EXPECT_EQ(folder.read(u"shop.cfp"), "former");
}

TEST_F(CfpNew, ReplacesAFileWhereItIsAskedTo) {
  folder.write(u"shop.cfp", "former");
  std::vector<Text> words = all;
  words.push_back(u"--replace");
  const ToolAnswer answer = cfp(u"new", words);
  EXPECT_EQ(answer.code, 0) << answer.err;
  EXPECT_EQ(answer.out, path() + ": written anew (SQL Server)\n");
  EXPECT_EQ(cfp(u"check").code, 0);
}

TEST_F(CfpNew, AsksForSecretsTwice) {
  played.answers = {u"my id", u"my id", u"pass", u"pass"};
  const ToolAnswer answer = run({u"cfp", u"new", u"--engine", u"oracle", u"--provider", u"OraOLEDB.Oracle",
                                 u"--client-user", u"app", folder.text(), u"shop"});
  EXPECT_EQ(answer.code, 0) << answer.err;
  EXPECT_EQ(played.prompts, (std::vector<Text>{u"New identification: ", u"New identification, once more: ",
                                               u"Password of the client app (may be empty): ",
                                               u"Password of the client app (may be empty), once more: "}));
  QVRcfp file;
  ASSERT_TRUE(file.Crear(u"my id", folder.text(), u"shop"));
  EXPECT_EQ(file.ClaveCli(u"my id"), u"pass");
}

TEST_F(CfpNew, WritesNothingAfterTwoAnswersThatDiffer) {
  played.answers = {u"my id", u"my ID"};
  const ToolAnswer answer = run({u"cfp", u"new", u"--engine", u"oracle", folder.text(), u"shop"});
  EXPECT_EQ(answer.code, 2);
  EXPECT_NE(answer.err.find("what was typed the second time differs"), std::string::npos) << answer.err;
  EXPECT_FALSE(exists(folder.file(u"shop.cfp")));
}

struct RefusedRow {
  const char* name;
  std::vector<Text> words;
  const char* reason;
};

TEST_F(CfpNew, RefusesWhatCannotStandInAConnectionString) {
  played.variables[u"QUOTE"] = u"a\"b";
  played.variables[u"LINE"] = u"a\nb";
  const RefusedRow rows[] = {
      {"data source", {u"--data-source", u"a\"b"}, "the data source has a double quote in it"},
      {"user", {u"--admin-user", u"a\"b", u"--admin-password-env", u"ADM"}, "the administrator has a double quote"},
      {"provider", {u"--provider", u"a;b"}, "the provider has a double quote or a semicolon in it"},
      {"catalogue", {u"--catalog", u"a;b"}, "the catalogue has a double quote or a semicolon in it"},
      {"control", {u"--data-source", u"a\x01"}, "the data source has a control character in it"},
      {"other", {u"--other", u"a\n"}, "the text of --other has a control character in it"},
      {"no user", {u"--client-password-env", u"CLI"}, "the client has a password and no name"},
      {"password",
       {u"--client-user", u"app", u"--client-password-env", u"QUOTE"},
       "the password of the client has a double quote in it"},
      {"password with a line",
       {u"--client-user", u"app", u"--client-password-env", u"LINE"},
       "the password of the client has a control character in it"},
      {"no variable",
       {u"--client-user", u"app", u"--client-password-env", u"GONE"},
       "the environment variable GONE is not set"},
      {"no terminal",
       {u"--client-user", u"app"},
       "nobody answers on a terminal: --client-password-env names a variable"},
  };
  for (const RefusedRow& row : rows) {
    SCOPED_TRACE(row.name);
    std::vector<Text> words = row.words;
    words.insert(words.end(), {u"--engine", u"sqlserver"});
    const ToolAnswer answer = cfp(u"new", words);
    EXPECT_EQ(answer.code, 2);
    EXPECT_EQ(answer.out, "");
    EXPECT_TRUE(answer.err.starts_with(std::string("qvrscript: ") + row.reason)) << answer.err;
    EXPECT_EQ(answer.err.find("a\"b"), std::string::npos) << answer.err;
    EXPECT_FALSE(exists(folder.file(u"shop.cfp")));
  }
}

TEST_F(CfpNew, RefusesAnEmptyIdentification) {
  played.variables[u"ID"] = u"";
  const ToolAnswer answer = cfp(u"new", all);
  EXPECT_EQ(answer.code, 2);
  EXPECT_NE(answer.err.find("the identification in the environment variable ID is empty"), std::string::npos);
}

TEST_F(CfpNew, RefusesNamesThatLeadElsewhere) {
  for (const TextView name : {u"", u"../shop", u"a\\b", u"C:shop", u"sh*p"}) {
    const ToolAnswer answer = run({u"cfp", u"new", u"--engine", u"jet", u"--id-env", u"ID", folder.text(), Text(name)});
    EXPECT_EQ(answer.code, 2);
    EXPECT_EQ(answer.out, "");
  }
  EXPECT_EQ(run({u"cfp", u"new", u"--engine", u"jet", u"--id-env", u"ID", u"", u"shop"}).code, 2);
}

TEST_F(CfpNew, AsksNobodyWhereThereIsNoFolder) {
  const ToolAnswer answer = run({u"cfp", u"new", u"--engine", u"jet", folder.file_text(u"none"), u"shop"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_NE(answer.err.find("no folder, or one that cannot be read"), std::string::npos) << answer.err;
  EXPECT_TRUE(played.prompts.empty());
  expect_any_traces();
}

// A folder of that name: nothing can be written in its place.
TEST_F(CfpNew, TellsWhatCannotBeWritten) {
  std::filesystem::create_directory(folder.file(u"shop.cfp"));
  EXPECT_EQ(cfp(u"new", all).err, "qvrscript: " + path() + ": exists already; --replace writes it anew\n");
  std::vector<Text> words = all;
  words.push_back(u"--replace");
  const ToolAnswer answer = cfp(u"new", words);
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.err, "qvrscript: " + path() + ": cannot be written; nothing was changed\n");
  expect_any_traces();
}

TEST_F(CfpNew, WarnsOfAFileWithoutProviderAndOfAPasswordInAnArgument) {
  const ToolAnswer answer = cfp(u"new", {u"--engine", u"jet", u"--other", u"Jet OLEDB:Database Password=hushhush"});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.err,
            "qvrscript: warning: without --provider the connection strings name none, and cannot be opened\n"
            "qvrscript: warning: others can see the password in --other while the program runs, and in the shell's "
            "history\n");
}

TEST_F(CfpNew, TellsMachines) {
  std::vector<Text> words = all;
  words.insert(words.end(), {u"--format", u"json"});
  EXPECT_EQ(Json::parse(cfp(u"new", words).out),
            Json({{"command", "cfp new"}, {"file", path()}, {"engine", "sqlserver"}, {"replaced", false}}));
}

}  // namespace
}  // namespace qvr::tests
