#include "odbc/odbc.h"

#include <array>

#include "odbc/odbc_api.h"

namespace qvr::odbc {
namespace {

std::vector<services::AdoError> diagnostics(SQLSMALLINT type, SQLHANDLE handle) {
  std::vector<services::AdoError> records;
  for (SQLSMALLINT number = 1;; ++number) {
    std::array<char16_t, 6> state{};
    std::array<char16_t, 2048> message{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN result = api().SQLGetDiagRecW(type, handle, number, wide(state.data()), &native,
                                                  wide(message.data()), short_units(message.size()), &length);
    if (!SQL_SUCCEEDED(result)) return records;
    services::AdoError record;
    record.description = message.data();
    record.sql_state = state.data();
    record.native_error = native;
    records.push_back(std::move(record));
  }
}

[[noreturn]] void fail(SQLSMALLINT type, SQLHANDLE handle) {
  std::vector<services::AdoError> records = diagnostics(type, handle);
  if (records.empty()) {
    records.emplace_back();
    records.back().description = u"ODBC call refused without a diagnostic record.";
    records.back().sql_state = u"HY000";
  }
  throw Failure(std::move(records));
}

}  // namespace

Handle::Handle(std::int16_t type, void* parent) : type_(type) {
  if (SQL_SUCCEEDED(api().SQLAllocHandle(type, parent, &handle_))) return;
  handle_ = nullptr;
  const SQLSMALLINT parent_type = type == SQL_HANDLE_STMT ? SQL_HANDLE_DBC : SQL_HANDLE_ENV;
  fail(parent_type, parent);
}

Handle::~Handle() {
  if (handle_ != nullptr) api().SQLFreeHandle(type_, handle_);
}

void Handle::check(int result) const {
  if (SQL_SUCCEEDED(result) || result == SQL_NO_DATA) return;
  fail(type_, handle_);
}

Statement::Statement(const Handle& connection, std::int32_t limit)
    : handle(SQL_HANDLE_STMT, connection.get()), timeout(limit) {
  // Ignored: a driver may not support query timeouts.
  api().SQLSetStmtAttrW(handle.get(), SQL_ATTR_QUERY_TIMEOUT, attribute(static_cast<SQLULEN>(limit)), 0);
}

void UnderWay::begin(const Statement& statement) {
  const std::lock_guard lock(mutex_);
  statement_ = &statement;
}

void UnderWay::end() noexcept {
  const std::lock_guard lock(mutex_);
  statement_ = nullptr;
}

void UnderWay::cancel() noexcept {
  const std::lock_guard lock(mutex_);
  if (statement_ != nullptr) api().SQLCancel(statement_->handle.get());
}

namespace {

// SQL_ATTR_ODBC_VERSION must be set before a connection handle is allocated.
void* with_version(const Handle& environment) {
  environment.check(api().SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION, attribute(SQL_OV_ODBC3), 0));
  return environment.get();
}

}  // namespace

Connection::Connection()
    : environment_(SQL_HANDLE_ENV, SQL_NULL_HANDLE), connection_(SQL_HANDLE_DBC, with_version(environment_)) {}

Connection::~Connection() {
  if (!open_) return;
  kept_.reset();
  // SQLDisconnect fails in a transaction; without one this does nothing.
  api().SQLEndTran(SQL_HANDLE_DBC, connection_.get(), SQL_ROLLBACK);
  api().SQLDisconnect(connection_.get());
}

void Connection::open(TextView connection_string, std::int32_t login_timeout) {
  // Ignored: a driver may not support login timeouts.
  api().SQLSetConnectAttrW(connection_.get(), SQL_ATTR_LOGIN_TIMEOUT, attribute(static_cast<SQLULEN>(login_timeout)),
                           0);
  std::array<char16_t, 1024> completed{};
  SQLSMALLINT length = 0;
  connection_.check(api().SQLDriverConnectW(connection_.get(), nullptr, wide(connection_string),
                                            short_units(connection_string.size()), wide(completed.data()),
                                            short_units(completed.size()), &length, SQL_DRIVER_NOPROMPT));
  open_ = true;
}

void Connection::close() {
  if (!open_) return;
  kept_.reset();
  connection_.check(api().SQLDisconnect(connection_.get()));
  open_ = false;
}

void Connection::set_autocommit(bool on) {
  const SQLULEN value = on ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF;
  connection_.check(api().SQLSetConnectAttrW(connection_.get(), SQL_ATTR_AUTOCOMMIT, attribute(value), 0));
}

bool Connection::is_lost() const {
  SQLULEN dead = SQL_CD_FALSE;
  // A driver may not know.
  const SQLRETURN asked = api().SQLGetConnectAttrW(connection_.get(), SQL_ATTR_CONNECTION_DEAD, &dead, SQL_IS_UINTEGER,
                                                   nullptr);
  return SQL_SUCCEEDED(asked) && static_cast<SQLUINTEGER>(dead) == SQL_CD_TRUE;
}

void Connection::end_transaction(bool commit) {
  connection_.check(api().SQLEndTran(SQL_HANDLE_DBC, connection_.get(), commit ? SQL_COMMIT : SQL_ROLLBACK));
}

std::unique_ptr<Statement> Connection::statement(std::int32_t timeout) {
  std::unique_ptr<Statement> kept = std::move(kept_);
  if (kept != nullptr && kept->timeout == timeout) return kept;
  return std::make_unique<Statement>(connection_, timeout);
}

void Connection::keep(std::unique_ptr<Statement> used) {
  if (api().SQLFreeStmt(used->handle.get(), SQL_CLOSE) == SQL_SUCCESS) kept_ = std::move(used);
}

}  // namespace qvr::odbc
