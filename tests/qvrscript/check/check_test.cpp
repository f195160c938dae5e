// The check of files and folders, as a user sees it.
#include <gtest/gtest.h>

#include <sstream>

#include "base/utf8.h"
#include "qvrscript/output/json.h"
#include "support/temporary_folder.h"
#include "support/traced.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

using script_tool::Json;

class Check : public testing::Test {
 protected:
  Text path(TextView name) const { return join({folder.text(), u"/", name}); }
  std::string shown(TextView name) const { return to_utf8(path(name)); }

  TemporaryFolder folder;
};

TEST_F(Check, SaysNothingOfWhatIsFine) {
  folder.write(u"GestionSQL1.cfc", "select 1\r\nGO\r\n");
  folder.write(u"notes.txt", "GO 5");
  const ToolAnswer answer = run_tool({u"check", folder.text()});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "");
}

TEST_F(Check, TellsFileLineMessageAndRule) {
  folder.write(u"GestionSQL1.cfc", "select 1\r\nGO\r\nselect 2\r\nGO;\r\n");
  const ToolAnswer answer = run_tool({u"check", path(u"GestionSQL1.cfc")});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, shown(u"GestionSQL1.cfc") +
                            ":3: what follows the last GO line is never run; where another file follows, it is run "
                            "together with that file's first command [no-last-go]\n" +
                            shown(u"GestionSQL1.cfc") +
                            ":4: \"GO;\" separates nothing: the line must hold only GO [go-semicolon]\n");
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

TEST_F(Check, LooksAtTheScriptsOfAFolderAndTheirNames) {
  folder.write(u"GestionSQL2.cfc", "select 1\nGO\n");
  folder.write(u"GestionSQL.CFC", "select 1\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", folder.text() + u"/"});
  EXPECT_EQ(answer.code, 1);
  std::vector<std::string> rules;
  std::istringstream lines(answer.out);
  for (std::string line; std::getline(lines, line);) rules.push_back(line.substr(line.rfind('[')));
  EXPECT_EQ(rules, (std::vector<std::string>{"[name-missed]", "[lf-only]"}));
  EXPECT_TRUE(answer.out.starts_with(shown(u"GestionSQL.CFC") + ": ")) << answer.out;
}

TEST_F(Check, WantsScriptsInAFolder) {
  folder.write(u"notes.txt", "select 1\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", folder.text()});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "qvrscript: " + to_utf8(folder.text()) + " holds no script (*.cfc)\n");
}

TEST_F(Check, TellsTheEngineByTheNameUnlessItIsGiven) {
  folder.write(u"GestionORA1.cfc", "create database x\r\nGO\r\n");
  folder.write(u"x.txt", "create database x\r\nGO\r\n");
  EXPECT_EQ(run_tool({u"check", path(u"GestionORA1.cfc")}).code, 0);
  EXPECT_EQ(run_tool({u"check", path(u"GestionORA1.cfc"), u"--engine", u"sqlserver"}).code, 1);
  EXPECT_EQ(run_tool({u"check", path(u"x.txt")}).code, 1);
  EXPECT_EQ(run_tool({u"check", path(u"x.txt"), u"--engine", u"jet"}).code, 0);
  EXPECT_EQ(traced(), Traces(4, u"names_in: 75 Path/File access error"));
}

TEST_F(Check, GoesOnBehindAFileThatCannotBeRead) {
  folder.write(u"GestionSQL1.cfc", "select 1\r\n");
  const ToolAnswer answer = run_tool({u"check", path(u"none.cfc"), path(u"GestionSQL1.cfc")});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.err, "qvrscript: " + shown(u"none.cfc") + " cannot be read\n");
  EXPECT_EQ(answer.out, shown(u"GestionSQL1.cfc") + ":1: the file has no GO line: nothing of it is run [no-go]\n");
  EXPECT_EQ(traced(), Traces(2, u"names_in: 75 Path/File access error"));
}

TEST_F(Check, WritesOneJsonDocument) {
  folder.write(u"Art\u00edculosSQL1.cfc", "select 1\r\nGO;\r\n");
  const ToolAnswer answer = run_tool({u"check", u"--json", folder.text(), path(u"none.cfc")});
  EXPECT_EQ(answer.code, 1);
  const Json json = Json::parse(answer.out);
  EXPECT_EQ(json["command"], "check");
  EXPECT_EQ(json["files"], 2);
  ASSERT_EQ(json["findings"].size(), 2u);
  EXPECT_EQ(json["findings"][0]["rule"], "no-go");
  const auto& second = json["findings"][1];
  EXPECT_EQ(second["file"], shown(u"Art\u00edculosSQL1.cfc"));
  EXPECT_EQ(second["line"], 2);
  EXPECT_EQ(second["rule"], "go-semicolon");
  EXPECT_EQ(second["message"], "\"GO;\" separates nothing: the line must hold only GO");
  ASSERT_EQ(json["unreadable"].size(), 1u);
  EXPECT_EQ(json["unreadable"][0], shown(u"none.cfc"));
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

TEST_F(Check, WritesJsonWhereThereIsNothing) {
  folder.write(u"GestionSQL1.cfc", "select 1\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", u"--json", folder.text()});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(Json::parse(answer.out)["findings"].size(), 0u);
}

}  // namespace
}  // namespace qvr::tests
