// What loading a definition or an update would run.
#include <gtest/gtest.h>

#include "base/utf8.h"
#include "output/json_reader.h"
#include "support/temporary_folder.h"
#include "support/traced.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

class List : public testing::Test {
 protected:
  List() {
    folder.write(u"GestionSQL2.cfc", "c\r\nGO\r\n");
    folder.write(u"GestionSQL1.cfc", "a\r\nGO\r\nb\r\nGO\r\n");
    folder.write(u"GestionSQL10.cfc", "never\r\nGO\r\n");
    folder.write(u"GestionJET1.cfc", "a\nGO\n");
    for (const TextView versions : {u"10023a10024", u"10024a10025", u"10025a10026"}) {
      folder.write(join({u"Gestion", versions, u"SQL.cfc"}), "a\r\nGO");
    }
  }

  ToolAnswer list(std::vector<Text> more) const {
    std::vector<Text> words = {u"list", folder.text(), u"Gestion"};
    words.insert(words.end(), more.begin(), more.end());
    return run_tool(words);
  }

  TemporaryFolder folder;
};

TEST_F(List, ShowsADefinitionForEachEngine) {
  const ToolAnswer answer = list({});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out,
            "Gestion, definition, Jet: 1 file, 1 command\n"
            "  GestionJET1.cfc: 1 command\n"
            "Gestion, definition, SQL Server: 2 files, 3 commands\n"
            "  GestionSQL1.cfc: 2 commands\n"
            "  GestionSQL2.cfc: 1 command\n");
  EXPECT_EQ(answer.err, "");
}

TEST_F(List, ShowsAnUpdateFromAVersionOn) {
  const ToolAnswer answer = list({u"--engine", u"sqlserver", u"--from", u"10024"});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out,
            "Gestion, update from 10024, SQL Server: 2 files, 2 commands\n"
            "  Gestion10024a10025SQL.cfc: 1 command\n"
            "  Gestion10025a10026SQL.cfc: 1 command\n");
}

TEST_F(List, CountsACommandWhereItBegins) {
  folder.write(u"GestionSQL1.cfc", "a\r\nGO\r\nb\r\n");
  EXPECT_EQ(list({u"--engine", u"sqlserver"}).out,
            "Gestion, definition, SQL Server: 2 files, 2 commands\n"
            "  GestionSQL1.cfc: 2 commands\n"
            "  GestionSQL2.cfc: 0 commands\n");
}

TEST_F(List, TellsThatNothingIsRun) {
  folder.write(u"GestionSQL2.cfc", "");
  const ToolAnswer broken = list({u"--engine", u"sqlserver"});
  EXPECT_EQ(broken.code, 1);
  EXPECT_EQ(broken.out,
            "Gestion, definition, SQL Server: 2 files, 2 commands\n"
            "  GestionSQL1.cfc: 2 commands\n"
            "  GestionSQL2.cfc: empty or cannot be read\n"
            "  nothing is run: every file must be readable and hold something\n");
  const ToolAnswer none = list({u"--from", u"10030"});
  EXPECT_EQ(none.code, 1);
  EXPECT_EQ(none.out, "");
  EXPECT_EQ(none.err, "qvrscript: no script of Gestion: nothing would be run as update from 10030\n");
}

TEST_F(List, WantsAFolder) {
  const ToolAnswer answer = run_tool({u"list", folder.text() + u"/none", u"Gestion"});
  EXPECT_EQ(answer.code, 2);
  EXPECT_EQ(answer.err, "qvrscript: " + to_utf8(folder.text()) + "/none is no folder that can be read\n");
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

TEST_F(List, WritesOneJsonDocument) {
  const Json json = read_json(list({u"--json", u"--from", u"10025"}).out);
  EXPECT_EQ(json["command"].text(), "list");
  EXPECT_EQ(json["name"].text(), "Gestion");
  EXPECT_EQ(json["from"].number(), 10025);
  ASSERT_EQ(json["engines"].size(), 1u);
  const Json& engine = json["engines"][0];
  EXPECT_EQ(engine["engine"].text(), "sqlserver");
  EXPECT_TRUE(engine["runs"].truth());
  EXPECT_EQ(engine["commands"].number(), 1);
  ASSERT_EQ(engine["files"].size(), 1u);
  EXPECT_EQ(engine["files"][0]["name"].text(), "Gestion10025a10026SQL.cfc");
  EXPECT_TRUE(engine["files"][0]["readable"].truth());
  EXPECT_EQ(read_json(list({u"--json"}).out)["from"].value.index(), 0u);
}

}  // namespace
}  // namespace qvr::tests
