// Comments in a script that silence a rule for the command behind them:
//   -- qvrscript: ignore RULE[, RULE]: REASON
#pragma once

#include <deque>
#include <map>
#include <string_view>
#include <vector>

#include "qvrscript/check/finding.h"
#include "qvrscript/check/script.h"

namespace qvr::script_tool {

class IgnoreComments {
 public:
  IgnoreComments() = default;
  // Those of this script; adds what is wrong with them.
  IgnoreComments(const Script& script, Findings& findings);
  IgnoreComments(const IgnoreComments&) = delete;
  IgnoreComments& operator=(const IgnoreComments&) = delete;

  // Why this rule is silent in this line; null where it is not. The nearest comment counts as used.
  const Text* reason(std::size_t line, std::string_view rule);

  // Adds those that silenced nothing so far.
  void tell_unused(Findings& findings) const;

 private:
  struct Range {
    std::size_t line, last_line;  // both grow from one to the next
    const Text* reason;
    bool used = false;
  };

  std::deque<Text> reasons_;
  std::map<std::string_view, std::vector<Range>> ranges_;  // by rule
};

}  // namespace qvr::script_tool
