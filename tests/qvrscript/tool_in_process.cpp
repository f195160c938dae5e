#include "tool_in_process.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/utf8.h"
#include "qvrscript/check/check.h"
#include "qvrscript/check/rule.h"
#include "qvrscript/program.h"

namespace qvr::tests {

ToolAnswer run_tool(const std::vector<Text>& words, const ToolCall& call) {
  std::ostringstream out, err;
  std::vector<std::string> bytes;
  for (const Text& word : words) bytes.push_back(to_utf8(word));
  const int code = script_tool::run_program(bytes, {out, err, call.terminal, call.colours, call.colours},
                                            call.surroundings);
  return {code, out.str(), err.str()};
}

std::vector<std::string> rules_of(const std::vector<script_tool::Finding>& findings) {
  std::vector<std::string> rules;
  for (const auto& finding : findings) {
    EXPECT_FALSE(finding.message.empty()) << finding.rule;
    EXPECT_NE(script_tool::rule_named(finding.rule), nullptr) << finding.rule << " is not among the rules";
    rules.push_back(std::to_string(finding.line) + " " + std::string(finding.rule));
  }
  return rules;
}

std::vector<std::string> rules_in(std::string_view bytes, Engine engine) {
  return rules_of(script_tool::findings_in(u"x.cfc", std::string(bytes), engine));
}

std::string lines(std::string_view text) {
  std::string whole;
  for (const char each : text) whole += each == '|' ? std::string("\r\n") : std::string(1, each);
  return whole;
}

void expect_rules(const RuleRow& row, Engine engine) {
  EXPECT_EQ(rules_in(lines(row.text), engine), row.rules) << row.name;
}

void expect_rules(const std::vector<RuleRow>& rows, Engine engine) {
  for (const RuleRow& row : rows) expect_rules(row, engine);
}

}  // namespace qvr::tests
