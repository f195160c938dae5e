// How a run went.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "base/failure.h"
#include "qvrscript/run/assembly.h"
#include "services/ado.h"

namespace qvr::script_tool {

// What became of what ran.
enum class Ending {
  Nothing,  // nothing ran: no connection, or no transaction
  Committed,
  PerhapsCommitted,  // but the database may have taken back what ran before a failure
  Rehearsed,         // all taken back, as was asked
  Kept,              // no transaction: each command stays
  TakenBack,
  PartlyKept,      // rolled back, but the engine committed a part by itself
  PerhapsKept,     // rolled back, and whether the engine takes such commands back is not known
  RollbackFailed,  // what the database kept is not known
};

struct RunFailure {
  std::size_t command = 0;  // from 1; 0: none, but the run itself
  FailureDetail failure;
  std::vector<services::AdoError> errors;  // all of the provider, in order; the first is usually the failure itself
};

// A statement that an engine commits by itself, and with it what ran before it.
struct Committing {
  std::size_t command = 0;  // from 1
  Text statement;           // such as "CREATE TABLE"
};

struct Outcome {
  std::size_t executed = 0;
  bool success = false;  // the list ran to its end, with commands left out perhaps
  bool interrupted = false;
  Ending ending = Ending::Nothing;
  std::vector<RunFailure> failures;
  std::optional<FailureDetail> rollback_failure;
  std::optional<Committing> kept_up_to;  // with PartlyKept and PerhapsKept
  std::vector<double> milliseconds;      // of each command that was begun
  double whole_milliseconds = 0;
};

}  // namespace qvr::script_tool
