// The manual's page beside the program, in both languages.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "tool_in_process.h"

namespace qvr::tests {
namespace {

// The rules in backquotes in the first column of the page, and those at the start of a line of the help.
std::set<std::string> rules_by(const std::regex& line, const std::string& text) {
  std::set<std::string> rules;
  const std::regex rule("[a-z]+(-[a-z0-9]+)+");
  for (std::sregex_iterator found(text.begin(), text.end(), line), end; found != end; ++found) {
    const std::string names = found->str(1);
    for (std::sregex_iterator each(names.begin(), names.end(), rule); each != end; ++each) rules.insert(each->str());
  }
  return rules;
}

class ManualPages : public ::testing::TestWithParam<std::string> {};

TEST_P(ManualPages, NameTheRulesOfTheHelp) {
  std::ifstream page(QVR_TESTS_MANUAL "/" + GetParam() + "/qvrscript.md");
  ASSERT_TRUE(page);
  const std::string manual{std::istreambuf_iterator<char>(page), {}};
  const std::set<std::string> rules = rules_by(std::regex(R"(\n\| (`[^|]+`) \|)"), manual);
  EXPECT_GT(rules.size(), 30u);
  EXPECT_EQ(rules,
            rules_by(std::regex(R"(\n  ([a-z0-9-]+-[a-z0-9-]+(, [a-z0-9-]+)*))"), run_tool({u"help", u"check"}).out));
}

INSTANTIATE_TEST_SUITE_P(Languages, ManualPages, ::testing::Values("en", "es"),
                         [](const auto& each) { return each.param; });

}  // namespace
}  // namespace qvr::tests
