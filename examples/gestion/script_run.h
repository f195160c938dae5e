// A call of the library that tells how far it has come, with what it told.
#pragma once

#include <string>
#include <vector>

#include "automation.h"

namespace gestion {

struct Outcome {
  Value result;          // what the call answered
  bool success = false;  // what the event of the end said
  int ends = 0;          // how often the end was told
  int progress_texts = 0;
  long done = -1, total = -1;  // of the last progress text that counts commands
};

// Calls a member of a runner of its own and shows what the runner tells.
Outcome call_runner(const wchar_t* member, std::vector<Value> arguments);

// Runs the commands; `result` is the truth value of the whole run.
Outcome run_script(const std::wstring& commands, const std::wstring& connection_string);

}  // namespace gestion
