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

// The rules in brackets at the end of each line.
std::vector<std::string> rules_told(const std::string& out) {
  std::vector<std::string> rules;
  std::istringstream lines(out);
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with(']')) rules.push_back(line.substr(line.rfind('[')));
  }
  return rules;
}

std::string repeated(std::string_view text, std::size_t times) {
  std::string whole;
  while (times-- > 0) whole += text;
  return whole;
}

TEST_F(Check, SaysNothingOfWhatIsFine) {
  folder.write(u"GestionSQL1.cfc", "select 1\r\nGO\r\n");
  folder.write(u"notes.txt", "GO 5");
  const ToolAnswer answer = run_tool({u"check", folder.text()});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "");
}

TEST_F(Check, TellsFileLineSeverityMessageAndRule) {
  folder.write(u"GestionSQL1.cfc", "select 1\r\nGO\r\nselect 2\r\nGO;\r\n");
  const ToolAnswer answer = run_tool({u"check", path(u"GestionSQL1.cfc")});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.out, shown(u"GestionSQL1.cfc") +
                            ":3: error: what follows the last GO line is never run; where another file follows, it is "
                            "run together with that file's first command [no-last-go]\n" +
                            shown(u"GestionSQL1.cfc") +
                            ":4: error: \"GO;\" separates nothing: the line must hold only GO [go-semicolon]\n"
                            "1 file: 2 errors, 0 warnings, 0 notes\n");
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

TEST_F(Check, LeavesTheTotalsOutWhenItIsQuiet) {
  folder.write(u"GestionSQL1.cfc", "select 1\r\nGO\r\nuse X\r\nGO\r\n");
  const std::string line = rules_told(run_tool({u"check", u"--quiet", folder.text()}).out).at(0);
  EXPECT_EQ(line, "[use-database]");
  const ToolAnswer loud = run_tool({u"check", folder.text()});
  EXPECT_TRUE(loud.out.ends_with("\n1 file: 0 errors, 0 warnings, 1 note\n")) << loud.out;
  EXPECT_TRUE(run_tool({u"check", u"--quiet", folder.text()}).out.ends_with("[use-database]\n"));
}

TEST_F(Check, ColoursErrorsAndWarnings) {
  folder.write(u"GestionSQL1.cfc", "GO 5\r\nselect 1\r\nGO\r\ncommit\r\nGO\r\nuse X\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", u"--quiet", folder.text()}, {.colours = true});
  std::istringstream lines(answer.out);
  std::string error, warning, note;
  std::getline(lines, error);
  std::getline(lines, warning);
  std::getline(lines, note);
  EXPECT_TRUE(error.starts_with("\x1b[31m")) << error;
  EXPECT_TRUE(warning.starts_with("\x1b[33m")) << warning;
  EXPECT_FALSE(note.starts_with("\x1b")) << note;
}

TEST_F(Check, FailsFromTheSeverityThatIsAskedFor) {
  folder.write(u"noteSQL1.cfc", "select 1\r\nGO\r\nuse X\r\nGO\r\n");
  folder.write(u"warningSQL1.cfc", "commit\r\nGO\r\n");
  folder.write(u"errorSQL1.cfc", "select 1\r\n");
  const auto code = [&](TextView name, TextView severity) {
    return run_tool({u"check", u"--fail-on", Text(severity), path(name)}).code;
  };
  expect_any_traces();
  EXPECT_EQ(code(u"noteSQL1.cfc", u"note"), 1);
  EXPECT_EQ(code(u"noteSQL1.cfc", u"warning"), 0);
  EXPECT_EQ(code(u"warningSQL1.cfc", u"warning"), 1);
  EXPECT_EQ(code(u"warningSQL1.cfc", u"error"), 0);
  EXPECT_EQ(code(u"errorSQL1.cfc", u"error"), 1);
  EXPECT_EQ(run_tool({u"check", path(u"noteSQL1.cfc")}).code, 0);
  EXPECT_EQ(run_tool({u"check", path(u"warningSQL1.cfc")}).code, 1);
}

TEST_F(Check, LeavesOutIgnoredRules) {
  folder.write(u"GestionSQL1.cfc", "commit\r\nGO 5\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", u"--ignore", u"own-transaction", folder.text()});
  EXPECT_EQ(rules_told(answer.out), std::vector<std::string>{"[go-count]"});
  EXPECT_EQ(run_tool({u"check", u"--ignore", u"own-transaction", u"--ignore", u"go-count", folder.text()}).out, "");
}

TEST_F(Check, RefusesToIgnoreWhatIsNoRule) {
  folder.write(u"GestionSQL1.cfc", "commit\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", u"--ignore", u"own-transactions", folder.text()});
  EXPECT_EQ(answer.code, 2);
  EXPECT_EQ(answer.out, "");
  EXPECT_TRUE(answer.err.starts_with("qvrscript: no such rule: own-transactions")) << answer.err;
}

TEST_F(Check, LeavesOutEncryption) {
  folder.write(u"GestionSQL1.cfc", "create view V as\r\nselect 1 N\r\nGO\r\nselect 1\r\nAS\r\nN\r\nGO\r\n");
  EXPECT_EQ(rules_told(run_tool({u"check", folder.text()}).out),
            (std::vector<std::string>{"[not-encrypted]", "[as-line]"}));
  const ToolAnswer answer = run_tool({u"check", u"--no-encryption", folder.text()});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, "");
}

TEST_F(Check, CountsWhatACommentSilencesAndShowsItNot) {
  folder.write(u"GestionSQL1.cfc", "-- qvrscript: ignore own-transaction: so it is\r\ncommit\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", folder.text()});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, "1 file: 0 errors, 0 warnings, 0 notes, 1 silenced\n");
}

TEST_F(Check, LooksAtTheScriptsOfAFolderAndTheirNames) {
  folder.write(u"GestionSQL2.cfc", "select 1\nGO\n");
  folder.write(u"GestionSQL.CFC", "select 1\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", folder.text() + u"/"});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(rules_told(answer.out), (std::vector<std::string>{"[name-missed]", "[lf-only]"}));
  EXPECT_TRUE(answer.out.starts_with(shown(u"GestionSQL.CFC") + ": error: ")) << answer.out;
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
  const ToolAnswer answer = run_tool({u"check", u"--quiet", path(u"none.cfc"), path(u"GestionSQL1.cfc")});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(answer.err, "qvrscript: " + shown(u"none.cfc") + " cannot be read\n");
  EXPECT_EQ(answer.out,
            shown(u"GestionSQL1.cfc") + ":1: error: the file has no GO line: nothing of it is run [no-go]\n");
  EXPECT_EQ(traced(), Traces(2, u"names_in: 75 Path/File access error"));
}

TEST_F(Check, FailsForAFileThatCannotBeReadWhateverTheSeverity) {
  EXPECT_EQ(run_tool({u"check", u"--fail-on", u"error", path(u"none.cfc")}).code, 1);
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

TEST_F(Check, ListsNotMoreThanAPersonReads) {
  folder.write(u"aSQL1.cfc", repeated("GO 5\r\n", 2500) + "select 1\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", folder.text()});
  EXPECT_EQ(answer.code, 1);
  EXPECT_EQ(rules_told(answer.out).size(), 1000u);
  EXPECT_TRUE(
      answer.out.ends_with("\n1500 more findings are not listed: 1500 errors, 0 warnings, 0 notes\n"
                           "1 file: 2500 errors, 0 warnings, 0 notes\n"))
      << answer.out.substr(answer.out.size() - 200);
}

TEST_F(Check, ListsNotMoreInAllFiles) {
  for (char16_t file = u'a'; file < u'a' + 11; ++file) {
    folder.write(join({Text(1, file), u"SQL1.cfc"}), repeated("GO 5\r\n", 1001) + "commit\r\nGO\r\n");
  }
  const ToolAnswer answer = run_tool({u"check", folder.text()});
  EXPECT_EQ(rules_told(answer.out).size(), 10000u);
  EXPECT_TRUE(
      answer.out.ends_with("\n1022 more findings are not listed: 1020 errors, 2 warnings, 0 notes\n"
                           "11 files: 11011 errors, 11 warnings, 0 notes\n"))
      << answer.out.substr(answer.out.size() - 200);
  const Json json = Json::parse(run_tool({u"check", u"--json", folder.text()}).out);
  EXPECT_EQ(json["findings"].size(), 10000u);
  EXPECT_EQ(json["counts"], Json({{"error", 11011}, {"warning", 11}, {"note", 0}, {"silenced", 0}}));
  EXPECT_EQ(json["omitted"], Json({{"error", 1020}, {"warning", 2}, {"note", 0}, {"silenced", 0}}));
}

TEST_F(Check, KeepsSilencedFindingsOutOfTheList) {
  folder.write(u"aSQL1.cfc", "-- qvrscript: ignore go-count: so\r\n" + repeated("GO 5\r\n", 1500) +
                                 "select 1\r\nGO\r\n" + repeated("GO 5\r\n", 3) + "select 1\r\nGO\r\n");
  const Json json = Json::parse(run_tool({u"check", u"--json", folder.text()}).out);
  EXPECT_EQ(json["findings"].size(), 3u);
  EXPECT_EQ(json["silenced"].size(), 1000u);
  EXPECT_EQ(json["counts"]["silenced"], 1500);
  EXPECT_EQ(json["omitted"]["silenced"], 500);
}

TEST_F(Check, ShowsNoControlCharacterOfAName) {
  const ToolAnswer answer = run_tool({u"check", path(u"a\x1b[31m\nb.cfc")});
  EXPECT_EQ(answer.err, "qvrscript: " + to_utf8(folder.text()) + "/a\\x1b[31m\\x0ab.cfc cannot be read\n");
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

TEST_F(Check, WritesOneJsonDocument) {
  folder.write(u"Art\u00edculosSQL1.cfc", "select 1\r\nGO;\r\n");
  const ToolAnswer answer = run_tool({u"check", u"--json", folder.text(), path(u"none.cfc")});
  EXPECT_EQ(answer.code, 1);
  const Json json = Json::parse(answer.out);
  EXPECT_EQ(json["command"], "check");
  EXPECT_EQ(json["files"], 2);
  EXPECT_EQ(json["exitCode"], 1);
  ASSERT_EQ(json["findings"].size(), 2u);
  EXPECT_EQ(json["findings"][0]["rule"], "no-go");
  EXPECT_EQ(json["findings"][1], Json({{"file", shown(u"Art\u00edculosSQL1.cfc")},
                                       {"line", 2},
                                       {"rule", "go-semicolon"},
                                       {"severity", "error"},
                                       {"message", "\"GO;\" separates nothing: the line must hold only GO"}}));
  EXPECT_EQ(json["silenced"], Json::array());
  EXPECT_EQ(json["counts"], Json({{"error", 2}, {"warning", 0}, {"note", 0}, {"silenced", 0}}));
  ASSERT_EQ(json["unreadable"].size(), 1u);
  EXPECT_EQ(json["unreadable"][0], shown(u"none.cfc"));
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

TEST_F(Check, WritesJsonOfWhatIsSilenced) {
  folder.write(u"GestionSQL1.cfc", "commit -- qvrscript: ignore own-transaction: so it is\r\nGO\r\n");
  const Json json = Json::parse(run_tool({u"check", u"--json", folder.text()}).out);
  EXPECT_EQ(json["findings"], Json::array());
  ASSERT_EQ(json["silenced"].size(), 1u);
  EXPECT_EQ(json["silenced"][0]["rule"], "own-transaction");
  EXPECT_EQ(json["silenced"][0]["severity"], "warning");
  EXPECT_EQ(json["silenced"][0]["reason"], "so it is");
  EXPECT_EQ(json["exitCode"], 0);
}

TEST_F(Check, WritesJsonWhereThereIsNothing) {
  folder.write(u"GestionSQL1.cfc", "select 1\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", u"--json", folder.text()});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(Json::parse(answer.out)["findings"].size(), 0u);
}

TEST_F(Check, WritesJsonOfAFolderWithoutScripts) {
  const Json json = Json::parse(run_tool({u"check", u"--json", folder.text()}).out);
  EXPECT_EQ(json["empty"], Json::array({to_utf8(folder.text())}));
  EXPECT_EQ(json["exitCode"], 1);
}

TEST_F(Check, WritesTheCommandsOfAWorkflow) {
  folder.write(u"50%, aSQL1.cfc", "commit\r\nGO;\r\nGO\r\n-- qvrscript: ignore use-database: so\r\nuse X\r\nGO\r\n");
  folder.write(u"bSQL1.cfc", "select 1\nGO\n");
  const ToolAnswer answer = run_tool({u"check", u"--format", u"github", folder.text(), path(u"none.cfc")});
  EXPECT_EQ(answer.code, 1);
  std::istringstream lines(answer.out);
  std::vector<std::string> found;
  for (std::string line; std::getline(lines, line);) found.push_back(line);
  ASSERT_EQ(found.size(), 4u);
  const Text slashed = replace_all(folder.text(), u"\\", u"/");
  const std::string place = to_utf8(replace_all(slashed, u":", u"%3A"));
  const std::string odd = place + "/50%25%2C aSQL1.cfc";
  EXPECT_TRUE(found[0].starts_with("::warning file=" + odd + ",line=1,title=own-transaction::without a ")) << found[0];
  EXPECT_EQ(found[1], "::error file=" + odd +
                          ",line=2,title=go-semicolon::\"GO;\" separates nothing: the line must hold only GO");
  EXPECT_TRUE(found[2].starts_with("::warning file=" + place + "/bSQL1.cfc,title=lf-only::the lines ")) << found[2];
  EXPECT_EQ(found[3], "::error file=" + place + "/none.cfc::" + shown(u"none.cfc") + " cannot be read");
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

TEST_F(Check, WritesNoLineEndIntoACommandOfAWorkflow) {
  const ToolAnswer answer = run_tool({u"check", u"--format", u"github", u"a\r\nb.cfc"});
  EXPECT_EQ(answer.out, "::error file=a%0D%0Ab.cfc::a%0D%0Ab.cfc cannot be read\n");
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

TEST_F(Check, WritesSarif) {
  folder.write(u"50% \u00f1SQL1.cfc",
               "select 1\r\nGO;\r\nGO\r\n-- qvrscript: ignore own-transaction: so it is\r\ncommit\r\nGO\r\n");
  const ToolAnswer answer = run_tool({u"check", u"--format", u"sarif", folder.text(), path(u"none.cfc")});
  EXPECT_EQ(answer.code, 1);
  const Json json = Json::parse(answer.out);
  EXPECT_EQ(json["version"], "2.1.0");
  const Json& run = json["runs"][0];
  ASSERT_EQ(run["results"].size(), 2u);
  const Json& rules = run["tool"]["driver"]["rules"];
  const Json& found = run["results"][0];
  EXPECT_EQ(found["ruleId"], "go-semicolon");
  EXPECT_EQ(rules[found["ruleIndex"].get<std::size_t>()]["id"], "go-semicolon");
  EXPECT_EQ(found["level"], "error");
  EXPECT_EQ(found["suppressions"], Json::array());
  const Json& place = found["locations"][0]["physicalLocation"];
  EXPECT_TRUE(place["artifactLocation"]["uri"].get<std::string>().ends_with("/50%25%20%C3%B1SQL1.cfc")) << place;
  EXPECT_TRUE(place["artifactLocation"]["uri"].get<std::string>().starts_with("file:///")) << place;
  EXPECT_EQ(place["region"]["startLine"], 2);
  EXPECT_EQ(run["results"][1]["suppressions"], Json::array({{{"kind", "inSource"}, {"justification", "so it is"}}}));
  const Json& invocation = run["invocations"][0];
  EXPECT_EQ(invocation["executionSuccessful"], false);
  EXPECT_EQ(invocation["exitCode"], 1);
  EXPECT_EQ(invocation["toolExecutionNotifications"].size(), 1u);
  EXPECT_EQ(traced(), Traces{u"names_in: 75 Path/File access error"});
}

}  // namespace
}  // namespace qvr::tests
