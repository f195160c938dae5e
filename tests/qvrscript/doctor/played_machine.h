// A library that the test plays, with a database of one table.
#pragma once

#include <map>

#include "qvrscript/doctor/try/tried_machine.h"

namespace qvr::tests {

struct PlayedLibrary {
  // Answers of "Class.Member" in place of the right ones, and of "ProgID" or "Class" that cannot be created: Empty.
  std::map<Text, Value> instead;
  Text refused;          // statements with this word fail
  bool undoes = true;    // of a script with a mistake
  bool in_order = true;  // the events
  int ends = 1;          // how often the end is told
  script_tool::Boxes boxes = script_tool::Boxes::Answered;
  std::function<void()> while_saving;  // of the connection file
  Text folder;                         // where files were saved
  std::vector<Text> statements;        // of the trial's own connection
};

// What machine_to_try() gives from now on; null: no machine.
void set_library(PlayedLibrary* library);

}  // namespace qvr::tests
