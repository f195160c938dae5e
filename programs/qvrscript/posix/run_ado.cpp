#include "qvrscript/run_ado.h"

#include "odbc/odbc_ado.h"

namespace qvr::script_tool {
namespace {

class OdbcRunAdo final : public RunAdo {
 public:
  explicit OdbcRunAdo(std::int32_t connect_timeout) : ado_(connect_timeout) {}

  std::unique_ptr<services::AdoConnection> new_connection() override { return ado_.new_connection(); }
  std::unique_ptr<services::AdoCommand> new_command() override { return ado_.new_command(); }
  std::unique_ptr<services::AdoParameter> new_parameter() override { return ado_.new_parameter(); }
  void cancel() noexcept override { ado_.cancel(); }

 private:
  odbc::OdbcAdo ado_;
};

}  // namespace

std::unique_ptr<RunAdo> make_run_ado(std::int32_t connect_timeout) {
  return std::make_unique<OdbcRunAdo>(connect_timeout);
}

}  // namespace qvr::script_tool
