// The table of rules.
#include "qvrscript/check/rule.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace qvr::tests {
namespace {

using script_tool::rules;

TEST(RuleTable, HasEachRuleOnceUnderAShortName) {
  std::set<std::string_view> names;
  for (const auto& rule : rules()) {
    EXPECT_TRUE(names.insert(rule.name).second) << rule.name;
    EXPECT_TRUE(std::regex_match(std::string(rule.name), std::regex("[a-z]+(-[a-z0-9]+)+"))) << rule.name;
    EXPECT_LT(rule.name.size(), 24u) << rule.name;
    EXPECT_FALSE(rule.summary.empty()) << rule.name;
    EXPECT_EQ(script_tool::rule_named(rule.name), &rule);
  }
}

TEST(RuleTable, KeepsAGroupTogether) {
  std::set<std::string_view> groups;
  std::string_view group;
  for (const auto& rule : rules()) {
    if (rule.group == group) continue;
    group = rule.group;
    EXPECT_TRUE(groups.insert(group).second) << rule.name;
  }
}

TEST(RuleTable, HasNoOtherRule) {
  EXPECT_EQ(script_tool::rule_named("go"), nullptr);
  EXPECT_EQ(script_tool::rule_named(""), nullptr);
}

TEST(RuleTable, EncryptionIsAGroup) {
  EXPECT_EQ(script_tool::rule_named("not-encrypted")->group, script_tool::kEncryptionRules);
}

}  // namespace
}  // namespace qvr::tests
