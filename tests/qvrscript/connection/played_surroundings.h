// Environment variables, a terminal's answers and a standard input that a test plays.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "qvrscript/surroundings.h"

namespace qvr::tests {

// One at a time: the program calls plain functions.
class PlayedSurroundings {
 public:
  PlayedSurroundings();
  ~PlayedSurroundings();
  PlayedSurroundings(const PlayedSurroundings&) = delete;
  PlayedSurroundings& operator=(const PlayedSurroundings&) = delete;

  // Databases are the system's own where there is one, see `open_database`.
  script_tool::Surroundings surroundings() const;

  std::map<Text, Text> variables;
  std::vector<Text> answers;  // on the terminal, in order; none left: there is no terminal
  std::vector<Text> prompts;  // that were shown
  std::optional<Text> input;
  std::unique_ptr<script_tool::Database> (*open_database)(TextView, std::int32_t) = nullptr;
};

}  // namespace qvr::tests
