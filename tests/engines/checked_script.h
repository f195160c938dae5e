// A script for a real engine that checks what it computes: each check is a row of a table, and the last statements list
// the rows that failed and count them all.
#pragma once

#include <string>

#include "base/engine.h"

namespace qvr::tests {

class CheckedScript {
 public:
  // `broken`: the number of a check, counted from 1, that is to fail whatever it finds; 0 for none. A proof that cannot
  // fail proves nothing.
  CheckedScript(Engine engine, int broken);

  Engine engine() const { return engine_; }
  bool oracle() const { return engine_ == Engine::Oracle; }

  void run(TextView statement);
  // The condition must be true, not false and not unknown.
  void check(const std::string& name, TextView condition);
  // The expression is exactly this text, told to the engine by its UTF-8 bytes.
  void check_text(const std::string& name, TextView expression, TextView expected);

  std::string finished() &&;

 private:
  Engine engine_;
  int broken_, checks_ = 0;
  std::string text_;
};

// The condition that the expression is this text, by its bytes; an empty text is Null to Oracle.
Text is_text(Engine engine, TextView expression, TextView expected);

// What stands behind a select list that needs no table.
TextView from_nothing(Engine engine);

void add_literals(CheckedScript& script);
void add_patterns(CheckedScript& script);
void add_clauses(CheckedScript& script);
void add_statements(CheckedScript& script);
void add_searches(CheckedScript& script);
void add_queries(CheckedScript& script);

}  // namespace qvr::tests
