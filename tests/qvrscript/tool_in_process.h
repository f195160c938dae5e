// The program run in this process, and the rules on a text in memory.
#pragma once

#include <string>
#include <vector>

#include "qvrscript/check/finding.h"
#include "qvrscript/engines.h"
#include "qvrscript/surroundings.h"

namespace qvr::tests {

struct ToolAnswer {
  int code;
  std::string out, err;
};

struct ToolCall {
  bool terminal = false;
  bool colours = false;
  script_tool::Surroundings surroundings = {};
};

ToolAnswer run_tool(const std::vector<Text>& words, const ToolCall& call = {});

// Every command that has a help; the first one is the program itself.
inline const std::vector<Text> kCommands[] = {
    {},
    {u"check"},
    {u"install"},
    {u"update"},
    {u"run"},
    {u"cfp"},
    {u"cfp", u"new"},
    {u"cfp", u"show"},
    {u"cfp", u"check"},
    {u"cfp", u"rekey"},
    {u"cfp", u"test"},
    {u"doctor"},
};

// What is found in a script, as "line rule", in order.
std::vector<std::string> rules_in(std::string_view bytes, Engine engine = Engine::SqlServer);
std::vector<std::string> rules_of(const std::vector<script_tool::Finding>& findings);

// The text with CR LF for each "|".
std::string lines(std::string_view text);

using Rules = std::vector<std::string>;

struct RuleRow {
  const char* name;
  const char* text;  // in the form of `lines`
  Rules rules;
};

// The row's text, or each row's, has exactly these findings.
void expect_rules(const RuleRow& row, Engine engine = Engine::SqlServer);
void expect_rules(const std::vector<RuleRow>& rows, Engine engine = Engine::SqlServer);

}  // namespace qvr::tests
