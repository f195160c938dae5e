// The system's ADO, reached by name only: the ids of its interfaces differ between systems.
#pragma once

#include "com/com.h"
#include "services/ado.h"

namespace qvr::com {

class ComAdo : public services::Ado {
 public:
  std::unique_ptr<services::AdoConnection> new_connection() override;
  std::unique_ptr<services::AdoCommand> new_command() override;
  std::unique_ptr<services::AdoParameter> new_parameter() override;
};

// A connection or command that a host handed over; null for Nothing.
std::unique_ptr<services::AdoConnection> wrap_connection(IDispatch* connection);
std::unique_ptr<services::AdoCommand> wrap_command(IDispatch* command);

}  // namespace qvr::com
