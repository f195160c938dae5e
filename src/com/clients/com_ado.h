// The system's ADO, late-bound only: the IIDs of its interfaces differ between Windows versions.
#pragma once

#include "com/clients/late_class.h"
#include "com/clients/late_object.h"
#include "services/ado.h"

namespace qvr::com {

// Keeps the classes' objects and the dispatch ids for as long as it lives.
class ComAdo : public services::Ado {
 public:
  std::unique_ptr<services::AdoConnection> new_connection() override;
  std::unique_ptr<services::AdoCommand> new_command() override;
  std::unique_ptr<services::AdoParameter> new_parameter() override;

 private:
  LateClass connections_{L"ADODB.Connection"};
  LateClass commands_{L"ADODB.Command"};
  LateClass parameters_{L"ADODB.Parameter"};
  const std::shared_ptr<DispatchIds> ids_ = std::make_shared<DispatchIds>();
};

// A connection or command of the host; null for Nothing.
std::unique_ptr<services::AdoConnection> wrap_connection(IDispatch* connection);
std::unique_ptr<services::AdoCommand> wrap_command(IDispatch* command);

}  // namespace qvr::com
