// The system's ADO, late-bound only: the IIDs of its interfaces differ between Windows versions.
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

// A connection or command of the host; null for Nothing.
std::unique_ptr<services::AdoConnection> wrap_connection(IDispatch* connection);
std::unique_ptr<services::AdoCommand> wrap_command(IDispatch* command);

}  // namespace qvr::com
