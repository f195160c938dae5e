// ADO over ODBC without automation, for tests that run natively against a real database.
#pragma once

#include <memory>

#include "services/ado.h"

namespace qvr::tests {

// Its commands take its own connections only.
class OdbcAdo : public services::Ado {
 public:
  std::unique_ptr<services::AdoConnection> new_connection() override;
  std::unique_ptr<services::AdoCommand> new_command() override;
  std::unique_ptr<services::AdoParameter> new_parameter() override;
};

}  // namespace qvr::tests
