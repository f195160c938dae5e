// The help texts.
#include <gtest/gtest.h>

#include <sstream>

#include "base/utf8.h"
#include "qvrscript/program.h"
#include "session/ov.h"
#include "support/traced.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

std::vector<Text> followed_by(std::vector<Text> words, TextView last) {
  words.emplace_back(last);
  return words;
}

TEST(Help, IsThereForAllAndEach) {
  for (const std::vector<Text>& topic : kCommands) {
    const ToolAnswer answer = run_tool(followed_by(topic, u"--help"));
    std::string usage = "Usage: qvrscript";
    for (const Text& word : topic) usage += " " + to_utf8(word);
    EXPECT_EQ(answer.code, 0) << usage;
    EXPECT_EQ(answer.err, "") << usage;
    EXPECT_NE(answer.out.find("\n" + usage + " [OPTIONS]"), std::string::npos) << answer.out;
    EXPECT_TRUE(answer.out.ends_with("\n") && !answer.out.ends_with("\n\n")) << usage;
    std::vector<Text> asked = {u"help"};
    asked.insert(asked.end(), topic.begin(), topic.end());
    EXPECT_EQ(run_tool(asked).out, answer.out) << usage;
  }
}

TEST(Help, FitsOnAScreen) {
  for (const std::vector<Text>& topic : kCommands) {
    std::istringstream text(run_tool(followed_by(topic, u"--help")).out);
    for (std::string line; std::getline(text, line);) EXPECT_LE(line.size(), 120u) << line;
  }
}

TEST(Help, OfNoCommandIsRefused) {
  const ToolAnswer answer = run_tool({u"help", u"cfp", u"x"});
  EXPECT_EQ(answer.code, 2);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err, "qvrscript: no such command: x; qvrscript --help tells more\n");
}

TEST(Program, FailsWhereItsOutputCannotBeWritten) {
  std::ostringstream out, err;
  out.setstate(std::ios::badbit);
  EXPECT_EQ(script_tool::run_program({"--help"}, {out, err}, {}), 1);
  EXPECT_EQ(err.str(), "qvrscript: the output could not be written whole\n");
}

TEST(Version, IsTheLibrarys) {
  const ToolAnswer answer = run_tool({u"--version"});
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.out, "qvrscript " + to_utf8(Ov::CadenaVersion(own_version())) + "\n");
}

}  // namespace
}  // namespace qvr::tests
