#include "odbc/ado_session.h"

#include <utility>

#include "odbc/ado_failure.h"
#include "odbc/connection_string.h"

namespace qvr::odbc {
namespace {

constexpr TextView kSource = u"ADODB.Connection";

// With or without a version, like ProgIDs.
bool is_odbc_provider(TextView name) {
  constexpr TextView kName = u"MSDASQL";
  return starts_with_no_case(name, kName) && (name.size() == kName.size() || name[kName.size()] == u'.');
}

void require_seconds(std::int32_t seconds) {
  if (seconds < 0) fail_ado(ado_number::kInvalidArgument, kSource);
}

}  // namespace

template <class Body>
auto AdoSession::provider_call(std::int32_t otherwise, Body&& body) {
  try {
    return std::forward<Body>(body)();
  } catch (const Failure& failure) {
    fail_with(provider_errors(failure.records(), otherwise));
  }
}

void AdoSession::fail_with(std::vector<services::AdoError> errors) {
  errors_ = std::move(errors);
  failed_in_transaction_ = true;
  const services::AdoError& first = errors_.front();
  throw RuntimeFailure(FailureDetail{first.number, first.description, first.source});
}

void AdoSession::fail_transaction(std::int32_t result, TextView description) {
  services::AdoError error;
  error.number = result;
  error.description = Text(description);
  error.source = Text(kProviderSource);
  fail_with({std::move(error)});
}

void AdoSession::require_open() const {
  if (!is_open()) fail_ado(ado_number::kObjectClosed, kSource);
}

void AdoSession::require_closed() const {
  if (is_open()) fail_ado(ado_number::kObjectOpen, kSource);
}

void AdoSession::set_connection_string(TextView text) {
  require_closed();
  connection_string_ = Text(text);
}

void AdoSession::set_provider(TextView name) {
  require_closed();
  provider_ = Text(name);
  open_provider_.clear();
}

void AdoSession::set_connection_timeout(std::int32_t seconds) {
  require_closed();
  require_seconds(seconds);
  connection_timeout_ = seconds;
}

void AdoSession::set_command_timeout(std::int32_t seconds) {
  require_seconds(seconds);
  command_timeout_ = seconds;
}

void AdoSession::open(TextView user, TextView password) {
  require_closed();
  ConnectionString parts = parse_connection_string(connection_string_);
  open_provider_ = parts.provider;
  if (!is_odbc_provider(provider())) fail_ado(ado_number::kProviderNotFound, kSource);
  if (!user.empty()) parts.user = Text(user);
  if (!password.empty()) parts.password = Text(password);
  provider_call(hresult::kFail, [&] {
    auto connection = std::make_unique<Connection>();
    connection->open(odbc_connection_string(parts), connection_timeout_);
    connection_ = std::move(connection);
  });
  ++openings_;
}

void AdoSession::close() {
  require_open();
  if (in_transaction_) fail_ado(ado_number::kInTransaction, kSource);
  provider_call(hresult::kFail, [&] { connection_->close(); });
  connection_.reset();
}

std::int32_t AdoSession::begin_trans() {
  require_open();
  if (in_transaction_) fail_transaction(hresult::kTransactionExists, u"The session already is in a transaction.");
  provider_call(hresult::kFail, [&] { connection_->set_autocommit(false); });
  in_transaction_ = true;
  failed_in_transaction_ = false;
  return 1;
}

// After a failed commit the transaction is still open and can be rolled back, unless the connection is lost.
void AdoSession::end_trans(bool commit) {
  require_open();
  if (!in_transaction_) fail_transaction(hresult::kNoTransaction, u"The session is in no transaction.");
  // With their connection some drivers lose the transaction as well, and then end none successfully: nothing would have
  // been committed, or a commit whose answer was lost would seem to be rolled back.
  if (failed_in_transaction_ && connection_->is_lost()) {
    fail_transaction(hresult::kFail, u"The connection to the server has been lost.");
  }
  provider_call(hresult::kFail, [&] { connection_->end_transaction(commit); });
  in_transaction_ = false;
  provider_call(hresult::kFail, [&] { connection_->set_autocommit(true); });
}

DriverFacts AdoSession::driver_facts() const {
  require_open();
  return odbc::driver_facts(connection_->handle());
}

ResultSet AdoSession::execute(TextView text, const std::vector<Value>& parameters, std::int32_t timeout,
                              ResultRows rows) {
  return on_connection([&](Connection& connection) {
    if (text.empty()) fail_provider(hresult::kNoCommandText, u"The command has no text.");
    return odbc::execute(connection, text, parameters, timeout, under_way_, rows);
  });
}

ResultSet AdoSession::on_connection(const std::function<ResultSet(Connection&)>& work) {
  require_open();
  return provider_call(hresult::kErrorsInCommand, [&] { return work(*connection_); });
}

}  // namespace qvr::odbc
