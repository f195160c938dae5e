// Statements that a rollback does not take back.
#pragma once

#include <functional>
#include <optional>

#include "qvrscript/run/outcome.h"
#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

struct Rollback {
  Ending ending = Ending::TakenBack;  // or PartlyKept, or PerhapsKept
  std::optional<Committing> kept_up_to;
};

// What a rollback behind this command (from 1, 0: none was begun) took back. A COMMIT or ROLLBACK of the script's own
// ends the transaction everywhere, DDL where the engine does so: `ask` is called with the last one where the number of
// the engine does not tell it. What runs inside procedures is not seen.
Rollback judged_rollback(const Assembly& assembly, std::size_t last_command,
                         const std::function<Ddl(const Committing& ddl)>& ask);

}  // namespace qvr::script_tool
