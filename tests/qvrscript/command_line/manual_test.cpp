// The manual's page beside the program, in both languages.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "qvrscript/check/rule.h"

namespace qvr::tests {
namespace {

// The rules in backquotes in the first column of the page's tables.
std::set<std::string> rules_of_page(const std::string& text) {
  std::set<std::string> rules;
  const std::regex line(R"(\n\| (`[^|]+`) \|)"), rule("[a-z]+(-[a-z0-9]+)+");
  for (std::sregex_iterator found(text.begin(), text.end(), line), end; found != end; ++found) {
    const std::string names = found->str(1);
    for (std::sregex_iterator each(names.begin(), names.end(), rule); each != end; ++each) rules.insert(each->str());
  }
  return rules;
}

class ManualPages : public ::testing::TestWithParam<std::string> {};

TEST_P(ManualPages, NameTheRulesOfTheCheck) {
  std::ifstream page(QVR_TESTS_MANUAL "/" + GetParam() + "/qvrscript.md");
  ASSERT_TRUE(page);
  const std::string manual{std::istreambuf_iterator<char>(page), {}};
  std::set<std::string> rules;
  for (const auto& rule : script_tool::rules()) rules.emplace(rule.name);
  EXPECT_EQ(rules_of_page(manual), rules);
}

INSTANTIATE_TEST_SUITE_P(Languages, ManualPages, ::testing::Values("en", "es"),
                         [](const auto& each) { return each.param; });

}  // namespace
}  // namespace qvr::tests
