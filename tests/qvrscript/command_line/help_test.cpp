// The help texts.
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>

#include "base/utf8.h"
#include "qvrscript/program.h"
#include "session/ov.h"
#include "support/traced.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

TEST(Help, IsThereForAllAndEach) {
  const struct {
    std::vector<Text> words;
    const char* first;
  } rows[] = {
      {{u"--help"}, "qvrscript - for those who write script files"},
      {{u"check", u"--help"}, "qvrscript check "},
      {{u"list", u"-h"}, "qvrscript list "},
      {{u"help", u"run"}, "qvrscript run "},
      {{u"doctor", u"--help"}, "qvrscript doctor "},
  };
  for (const auto& row : rows) {
    const ToolAnswer answer = run_tool(row.words);
    EXPECT_EQ(answer.code, 0) << row.first;
    EXPECT_TRUE(answer.out.starts_with(row.first)) << answer.out;
    EXPECT_NE(answer.out.find("Exit codes: 0 "), std::string::npos) << row.first;
    EXPECT_TRUE(answer.out.ends_with("\n")) << row.first;
  }
}

TEST(Help, FitsOnAScreen) {
  for (const std::vector<Text>& words :
       {std::vector<Text>{u"help"}, {u"help", u"check"}, {u"help", u"list"}, {u"help", u"run"}, {u"help", u"doctor"}}) {
    std::istringstream text(run_tool(words).out);
    for (std::string line; std::getline(text, line);) EXPECT_LE(line.size(), 120u) << line;
  }
}

// Every command line of the help is one that the program takes: at the worst its files are not there.
TEST(Help, ShowsCommandLinesThatAreTaken) {
  const std::regex example(R"(\n +qvrscript ((?:check|list) [a-zA-Z0-9 .-]+[a-zA-Z0-9])(?=[ \n]))");
  std::set<std::string> seen;
  for (const Text topic : {u"check", u"list"}) {
    const std::string help = run_tool({u"help", topic}).out;
    for (std::sregex_iterator found(help.begin(), help.end(), example), end; found != end; ++found) {
      std::vector<Text> words;
      std::istringstream line(found->str(1).substr(0, found->str(1).find("   ")));
      for (std::string word; line >> word;) words.push_back(from_utf8(word).value());
      const ToolAnswer answer = run_tool(words);
      EXPECT_EQ(answer.err.find("tells more"), std::string::npos) << found->str(1) << ": " << answer.err;
      seen.insert(found->str(1));
    }
  }
  EXPECT_GE(seen.size(), 4u);
  EXPECT_EQ(traced(), Traces(5, u"names_in: 75 Path/File access error"));
}

TEST(Program, FailsWhereItsOutputCannotBeWritten) {
  std::ostringstream out, err;
  out.setstate(std::ios::badbit);
  const std::vector<Text> words = {u"--help"};
  EXPECT_EQ(script_tool::run_program(words, {out, err, false}, environment().make_ado), 2);
  EXPECT_EQ(err.str(), "qvrscript: the output cannot be written\n");
}

TEST(Version, IsTheLibrarys) {
  const ToolAnswer answer = run_tool({u"--version"});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, "qvrscript " + to_utf8(Ov::CadenaVersion(own_version())) + "\n");
}

}  // namespace
}  // namespace qvr::tests
