// One run of a script through the library, with what its events told.
#pragma once

#include <string>

#include "automation.h"

namespace gestion {

struct RunOutcome {
  bool result = false;        // what the call answered
  bool success = false;       // what the event of the end said
  int ends = 0;               // how often the end was told
  int progress_texts = 0;
  long done = -1, total = -1; // of the last progress text that counts commands
};

RunOutcome run_script(const std::wstring& commands, const std::wstring& connection_string);

}  // namespace gestion
