// The manual's pages beside the program, in both languages.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "qvrscript/check/check_output.h"
#include "qvrscript/check/rule.h"
#include "tool_in_process.h"

namespace qvr::tests {
namespace {

constexpr const char* kPages[] = {"qvrscript.md", "qvrscript-scripts.md", "qvrscript-build-servers.md"};

std::set<std::string> matches(const std::string& text, const char* pattern) {
  const std::regex expression(pattern);
  std::set<std::string> found;
  for (std::sregex_iterator each(text.begin(), text.end(), expression), end; each != end; ++each) {
    found.insert(each->str());
  }
  return found;
}

std::set<std::string> options_in(const std::string& text) { return matches(text, "--[a-z][a-z-]*"); }

// What each command's help lists, a line each: those in examples are not among them.
std::set<std::string> options_of_help() {
  std::set<std::string> options;
  for (std::vector<Text> words : kCommands) {
    words.emplace_back(u"--help");
    std::istringstream help(run_tool(words).out);
    for (std::string line; std::getline(help, line);) {
      if (line.starts_with("  -")) options.merge(options_in(line.substr(0, line.find(' ', 2))));
    }
  }
  return options;
}

std::string read(const std::string& path) {
  std::ifstream page(path);
  EXPECT_TRUE(page) << path;
  return {std::istreambuf_iterator<char>(page), {}};
}

class ManualPages : public ::testing::TestWithParam<std::string> {
 protected:
  static std::string page(const std::string& name) { return read(QVR_TESTS_MANUAL "/" + GetParam() + "/" + name); }
};

// In the table of rules, whose second column is the severity.
std::map<std::string, std::string> rules_of_page(const std::string& text) {
  std::map<std::string, std::string> rules;
  const std::regex line(R"(\n\| (`[^|]+`) \| (error|warning|note) \|)");
  for (std::sregex_iterator found(text.begin(), text.end(), line), end; found != end; ++found) {
    for (const std::string& rule : matches(found->str(1), "[a-z]+(-[a-z0-9]+)+")) rules[rule] = found->str(2);
  }
  return rules;
}

TEST_P(ManualPages, NameTheRulesOfTheCheckWithTheirSeverity) {
  std::map<std::string, std::string> rules;
  for (const auto& rule : script_tool::rules()) {
    rules[std::string(rule.name)] = script_tool::severity_word(rule.severity);
  }
  EXPECT_EQ(rules_of_page(page("qvrscript-scripts.md")), rules);
}

// Outside of blocks of code.
std::set<std::string> quoted_options(const std::string& page) {
  std::istringstream lines(page);
  std::string prose;
  bool code = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("```")) code = !code;
    if (!code && !line.starts_with("```")) prose += line + "\n";
  }
  std::set<std::string> options;
  for (const std::string& quoted : matches(prose, "`[^`]*`")) options.merge(options_in(quoted));
  return options;
}

TEST_P(ManualPages, NameEveryOptionAndNoOther) {
  std::set<std::string> named;
  for (const char* name : kPages) named.merge(quoted_options(page(name)));
  std::set<std::string> options = options_of_help();
  EXPECT_GT(options.size(), 30u);
  EXPECT_EQ(named, options);
}

INSTANTIATE_TEST_SUITE_P(Languages, ManualPages, ::testing::Values("en", "es"),
                         [](const auto& each) { return each.param; });

}  // namespace
}  // namespace qvr::tests
