// The tables of docs/failures.md that say what becomes of a run on a server that fails.
#pragma once

#include <string>
#include <vector>

#include "servers/server.h"

namespace qvr::tests {

// One combination of the table's first four columns, with what the others say.
struct FaultCase {
  std::string name;  // the combination
  std::string fault, when;
  ServerKind server;
  bool yes;                    // the answer, where the question is asked
  std::string host, database;  // what the host sees, what is in the database
};

// "command 2", "commands 1, 2 and 3".
std::string listed_commands(const std::vector<std::string>& numbers);

struct FaultTable {
  std::vector<FaultCase> cases;

  struct Unseen {
    std::string fault, when;
    ServerKind server;
    bool operator==(const Unseen&) const = default;
  };
  std::vector<Unseen> unseen;

  // What a server, or its driver, says of a fault: a piece of its message.
  struct Message {
    std::string fault;
    ServerKind server;
    std::string piece;
  };
  std::vector<Message> messages;

  static const FaultTable& of_the_manual();
};

}  // namespace qvr::tests
