// Shared by the classes that execute commands.
#pragma once

#include <memory>

#include "support/ado/behaviour.h"
#include "support/ado/com/connection.h"

namespace qvr::tests::com {

// A connection as an argument gives it: an object, or the text to open one of its own with.
struct GivenConnection {
  std::shared_ptr<AdoSession> session;  // null for Nothing
  Ref<Connection> object;
};

GivenConnection session_of(const VARIANT& argument, TextView source);

// The command's own type unless the options at `options` name another one.
std::int32_t type_asked_for(const AdoCommandState& command, const Call& call, unsigned options);

// Answers with a recordset of these rows.
void answer_rows(const AdoCommandState& command, odbc::ResultSet rows, Call& call);

// Executes, hands the number of affected rows to the argument at `affected`, and answers with the recordset.
void execute_and_answer(AdoCommandState& command, const std::vector<Value>& parameters, Call& call, unsigned affected,
                        unsigned options);

}  // namespace qvr::tests::com
