#include "odbc/odbc_ado.h"

#include <vector>

#include "odbc/ado_command_state.h"
#include "odbc/ado_failure.h"
#include "odbc/ado_session.h"

namespace qvr::odbc {
namespace {

class NativeConnection : public services::AdoConnection {
 public:
  explicit NativeConnection(std::int32_t connect_timeout) { session_->set_connection_timeout(connect_timeout); }

  void set_connection_string(TextView text) override { session_->set_connection_string(text); }
  void open() override { session_->open(); }
  void begin_trans() override { session_->begin_trans(); }
  void commit_trans() override { session_->commit_trans(); }
  void rollback_trans() override { session_->rollback_trans(); }
  void close() override { session_->close(); }
  std::vector<services::AdoError> errors() override { return session_->errors(); }

  const std::shared_ptr<AdoSession>& session() const { return session_; }

 private:
  // Shared with the commands, which may outlive the connection object, as in ADO.
  std::shared_ptr<AdoSession> session_ = std::make_shared<AdoSession>();
};

class NativeCommand : public services::AdoCommand {
 public:
  void set_active_connection(services::AdoConnection& connection) override {
    const auto* own = dynamic_cast<NativeConnection*>(&connection);
    if (own == nullptr) fail_ado(ado_number::kInvalidArgument, u"ADODB.Command");
    state_.set_session(own->session());
  }
  void set_command_type(services::CommandType type) override { state_.set_type(static_cast<std::int32_t>(type)); }
  void set_command_text(TextView text) override { state_.set_text(text); }
  void set_command_timeout(std::int32_t seconds) override { state_.set_timeout(seconds); }
  void execute() override { state_.execute_for_effect(); }

  void refresh_parameters() override { refuse(); }
  Value parameter_value(std::int32_t) override { refuse(); }
  void set_parameter_value(std::int32_t, const Value&) override { refuse(); }
  void append_parameter(services::AdoParameter&) override { refuse(); }

 private:
  // Procedures are called through automation only.
  [[noreturn]] static void refuse() { fail_ado(ado_number::kFeatureNotAvailable, u"ADODB.Command"); }

  AdoCommandState state_;
};

}  // namespace

std::unique_ptr<services::AdoConnection> OdbcAdo::new_connection() {
  auto made = std::make_unique<NativeConnection>(connect_timeout_);
  const std::lock_guard lock(mutex_);
  std::erase_if(sessions_, [](const auto& each) { return each.expired(); });
  sessions_.push_back(made->session());
  return made;
}

std::unique_ptr<services::AdoCommand> OdbcAdo::new_command() { return std::make_unique<NativeCommand>(); }

std::unique_ptr<services::AdoParameter> OdbcAdo::new_parameter() {
  fail_ado(ado_number::kFeatureNotAvailable, u"ADODB.Parameter");
}

void OdbcAdo::cancel() noexcept {
  const std::lock_guard lock(mutex_);
  for (const auto& each : sessions_) {
    if (const auto session = each.lock()) session->cancel();
  }
}

std::unique_ptr<OdbcAdo> make_odbc_ado(std::int32_t connect_timeout) {
  return std::make_unique<OdbcAdo>(connect_timeout);
}

}  // namespace qvr::odbc
