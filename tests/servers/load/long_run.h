// The script of a long run, and whether what a program holds stays the same meanwhile.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/text.h"
#include "servers/server.h"

namespace qvr::tests {

// How many groups of commands a run has: a few, or as many as take about QVR_LONG_RUN_SECONDS.
std::size_t groups_of_long_run();

inline constexpr std::size_t kCommandsOfGroup = 4;

// Makes a table with this number of rows.
Text long_run_table(std::size_t rows);
// Each group inserts a row, changes one, asks for a hundred and waits for a hundredth of a second.
Text long_run_script(ServerKind kind, std::size_t groups);

// What a program holds at one moment of the run.
struct Held {
  std::size_t bytes = 0, handles = 0, threads = 0;
};

// Ten moments of a run, the first of them when a tenth is over: what is kept for later is there by then.
class Watched {
 public:
  Watched(std::size_t commands, Held (*held)()) : commands_(commands), held_(held) {}
  // Call it once for each command.
  void after_command();
  // Empty where nothing grew; otherwise all moments, one a line.
  std::string growth() const;
  // All moments, one a line.
  std::string shown() const;

 private:
  std::size_t commands_, done_ = 0;
  Held (*held_)();
  std::vector<Held> moments_;
};

}  // namespace qvr::tests
