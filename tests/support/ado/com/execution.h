// What the classes that execute commands share.
#pragma once

#include <memory>

#include "support/ado/ado_command_state.h"
#include "support/ado/com/connection.h"

namespace qvr::tests::com {

// A connection as an argument gives it: an object, or the text to open one of its own with.
struct GivenConnection {
  std::shared_ptr<AdoSession> session;  // null for Nothing
  Ref<Connection> object;
};

GivenConnection session_of(const VARIANT& argument, TextView source);

// Executes, hands the number of affected rows to the argument at `affected`, and answers with the recordset. The
// options at `options`, when given, name the command's type in place of the command's own.
void execute_and_answer(AdoCommandState& command, const std::vector<Value>& parameters, Call& call, unsigned affected,
                        unsigned options);

}  // namespace qvr::tests::com
