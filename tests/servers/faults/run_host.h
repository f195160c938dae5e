// A host that runs scripts by one object of QVRScr, natively or by automation.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include "base/text.h"

namespace qvr::tests {

// What a host sees of a run.
struct SeenRun {
  bool result = false;
  std::vector<bool> ends;   // one for each Terminado
  std::vector<Text> boxes;  // in order
};

// Called before each of ADO's calls, by the thread that runs: "Open", "BeginTrans", "Execute", "CommitTrans",
// "RollbackTrans", "Close".
using BeforeCall = std::function<void(TextView call)>;

class RunHost {
 public:
  static std::unique_ptr<RunHost> make();
  virtual ~RunHost() = default;

  // Every question is answered so.
  virtual SeenRun run(TextView commands, TextView ado_string, bool yes, const BeforeCall& before) = 0;
};

// What the process has of the system.
struct Handles {
  std::size_t handles = 0, threads = 0;  // threads natively only
};

Handles open_handles();

}  // namespace qvr::tests
