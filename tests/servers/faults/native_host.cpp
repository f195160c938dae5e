#include <algorithm>
#include <filesystem>

#include "odbc/odbc_ado.h"
#include "script/qvrscr.h"
#include "servers/faults/run_host.h"
#include "services/builtin_error_report.h"
#include "support/test_thread.h"

namespace qvr::tests {
namespace {

class HookedConnection final : public services::AdoConnection {
 public:
  HookedConnection(std::unique_ptr<services::AdoConnection> inner, const BeforeCall& before)
      : inner_(std::move(inner)), before_(before) {}

  services::AdoConnection& inner() { return *inner_; }
  void set_connection_string(TextView text) override { inner_->set_connection_string(text); }
  void open() override { before_(u"Open"), inner_->open(); }
  void begin_trans() override { before_(u"BeginTrans"), inner_->begin_trans(); }
  void commit_trans() override { before_(u"CommitTrans"), inner_->commit_trans(); }
  void rollback_trans() override { before_(u"RollbackTrans"), inner_->rollback_trans(); }
  void close() override { before_(u"Close"), inner_->close(); }
  std::vector<services::AdoError> errors() override { return inner_->errors(); }

 private:
  std::unique_ptr<services::AdoConnection> inner_;
  const BeforeCall& before_;
};

class HookedCommand final : public services::AdoCommand {
 public:
  HookedCommand(std::unique_ptr<services::AdoCommand> inner, const BeforeCall& before)
      : inner_(std::move(inner)), before_(before) {}

  void set_active_connection(services::AdoConnection& connection) override {
    inner_->set_active_connection(dynamic_cast<HookedConnection&>(connection).inner());
  }
  void set_command_type(services::CommandType type) override { inner_->set_command_type(type); }
  void set_command_text(TextView text) override { inner_->set_command_text(text); }
  void set_command_timeout(std::int32_t seconds) override { inner_->set_command_timeout(seconds); }
  void execute() override { before_(u"Execute"), inner_->execute(); }
  void refresh_parameters() override { inner_->refresh_parameters(); }
  Value parameter_value(std::int32_t index) override { return inner_->parameter_value(index); }
  void set_parameter_value(std::int32_t index, const Value& value) override {
    inner_->set_parameter_value(index, value);
  }
  void append_parameter(services::AdoParameter& parameter) override { inner_->append_parameter(parameter); }

 private:
  std::unique_ptr<services::AdoCommand> inner_;
  const BeforeCall& before_;
};

class HookedAdo final : public services::Ado {
 public:
  explicit HookedAdo(const BeforeCall& before) : before_(before) {}
  std::unique_ptr<services::AdoConnection> new_connection() override {
    return std::make_unique<HookedConnection>(inner_->new_connection(), before_);
  }
  std::unique_ptr<services::AdoCommand> new_command() override {
    return std::make_unique<HookedCommand>(inner_->new_command(), before_);
  }
  std::unique_ptr<services::AdoParameter> new_parameter() override { return inner_->new_parameter(); }

 private:
  std::unique_ptr<odbc::OdbcAdo> inner_ = odbc::make_odbc_ado();
  const BeforeCall& before_;
};

class NativeHost final : public RunHost, private ScriptEvents {
 public:
  NativeHost() {
    thread_.make_ado = [this] { return std::make_unique<HookedAdo>(before_); };
    thread_.make_error_report = [this] { return std::make_unique<services::BuiltinErrorReport>(thread_.boxes); };
  }

  SeenRun run(TextView commands, TextView ado_string, bool yes, const BeforeCall& before) override {
    before_ = before;
    thread_.boxes.always = yes ? BoxAnswer::Yes : BoxAnswer::No;
    thread_.boxes.shown.clear();
    seen_ = {};
    Text id = u"app", shown;
    seen_.result = runner_.EjecutarComandos(id, Engine::SqlServer, commands, ado_string, shown);
    seen_.boxes = thread_.boxes.shown;
    return seen_;
  }

 private:
  void Progreso(const Text&) noexcept override {}
  void Terminado(bool Exito) noexcept override { seen_.ends.push_back(Exito); }

  TestThread thread_;
  BeforeCall before_;
  SeenRun seen_;
  QVRScr runner_{*this};
};

std::size_t entries_of(const char* folder) {
  const std::filesystem::directory_iterator entries(folder);
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

}  // namespace

std::unique_ptr<RunHost> RunHost::make() { return std::make_unique<NativeHost>(); }

Handles open_handles() { return {entries_of("/proc/self/fd"), entries_of("/proc/self/task")}; }

}  // namespace qvr::tests
