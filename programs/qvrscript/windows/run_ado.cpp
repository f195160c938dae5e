#include "qvrscript/run_ado.h"

#include "com/clients/com_ado.h"

namespace qvr::script_tool {
namespace {

class ComRunAdo final : public RunAdo {
 public:
  explicit ComRunAdo(std::int32_t connect_timeout) : connect_timeout_(connect_timeout) {}

  std::unique_ptr<services::AdoConnection> new_connection() override {
    const com::HostPtr<IDispatch> connection = connections_.create();
    com::LateObject(connection).put(L"ConnectionTimeout", connect_timeout_);
    return com::wrap_connection(connection.Get());
  }
  std::unique_ptr<services::AdoCommand> new_command() override { return ado_.new_command(); }
  std::unique_ptr<services::AdoParameter> new_parameter() override { return ado_.new_parameter(); }

  // Nothing: Command.Cancel ends what was executed asynchronously, and the objects of a single-threaded apartment take
  // no call from another thread while theirs is inside Execute. The run ends after the command.
  void cancel() noexcept override {}

 private:
  const std::int32_t connect_timeout_;
  com::LateClass connections_{L"ADODB.Connection"};
  com::ComAdo ado_;
};

}  // namespace

std::unique_ptr<RunAdo> make_run_ado(std::int32_t connect_timeout) {
  return std::make_unique<ComRunAdo>(connect_timeout);
}

}  // namespace qvr::script_tool
