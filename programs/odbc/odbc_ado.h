// ADO over ODBC without automation, for programs that run natively.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "odbc/ado_session.h"
#include "services/ado.h"

namespace qvr::odbc {

// Commands accept connections of this implementation only, and no parameters: procedures are called through automation
// only.
class OdbcAdo : public services::Ado {
 public:
  // `connect_timeout` of its connections, in seconds, 0: no limit.
  explicit OdbcAdo(std::int32_t connect_timeout) : connect_timeout_(connect_timeout) {}

  std::unique_ptr<services::AdoConnection> new_connection() override;
  std::unique_ptr<services::AdoCommand> new_command() override;
  std::unique_ptr<services::AdoParameter> new_parameter() override;

  // By any thread: the commands that are executed on its connections fail. Harmless where there are none.
  void cancel() noexcept;

 private:
  const std::int32_t connect_timeout_;
  std::mutex mutex_;
  std::vector<std::weak_ptr<AdoSession>> sessions_;
};

// With ADO's own time limit unless one is given.
std::unique_ptr<OdbcAdo> make_odbc_ado(std::int32_t connect_timeout = 15);

}  // namespace qvr::odbc
