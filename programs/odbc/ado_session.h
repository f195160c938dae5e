// The behaviour of an ADO connection, native or through automation.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "base/text.h"
#include "base/value.h"
#include "odbc/driver_facts.h"
#include "odbc/odbc.h"
#include "odbc/odbc_statement.h"
#include "services/ado.h"

namespace qvr::odbc {

// Closed, open, or open in a transaction. Failures throw RuntimeFailure with ADO as the source for a wrong state and
// with the provider as the source for ODBC's errors.
class AdoSession {
 public:
  const Text& connection_string() const { return connection_string_; }
  void set_connection_string(TextView text);
  const Text& provider() const { return open_provider_.empty() ? provider_ : open_provider_; }
  void set_provider(TextView name);
  std::int32_t connection_timeout() const { return connection_timeout_; }
  void set_connection_timeout(std::int32_t seconds);
  std::int32_t command_timeout() const { return command_timeout_; }
  void set_command_timeout(std::int32_t seconds);

  // User and password override those of the connection string unless empty.
  void open(TextView user = {}, TextView password = {});
  void close();  // fails in a transaction; the destructor rolls back
  bool is_open() const { return connection_ != nullptr; }
  std::uint32_t openings() const { return openings_; }  // counts openings, to tell one from the next

  std::int32_t begin_trans();  // the nesting level, which is always 1
  void commit_trans() { end_trans(true); }
  void rollback_trans() { end_trans(false); }

  ResultSet execute(TextView text, const std::vector<Value>& parameters, std::int32_t timeout,
                    ResultRows rows = ResultRows::Kept);
  // Work of ODBC's own on the open connection; its failures become the provider's.
  ResultSet on_connection(const std::function<ResultSet(Connection&)>& work);
  // By any thread: the command that is executed fails. Harmless where none is.
  void cancel() noexcept { under_way_.cancel(); }

  DriverFacts driver_facts() const;  // of the open connection

  // The errors of the last failure of the provider; successful calls do not clear them, as in ADO.
  const std::vector<services::AdoError>& errors() const { return errors_; }
  void clear_errors() { errors_.clear(); }

 private:
  template <class Body>
  auto provider_call(std::int32_t otherwise, Body&& body);
  [[noreturn]] void fail_with(std::vector<services::AdoError> errors);
  [[noreturn]] void fail_transaction(std::int32_t result, TextView description);
  void require_open() const;
  void require_closed() const;
  void end_trans(bool commit);

  Text connection_string_;
  Text provider_ = u"MSDASQL";
  Text open_provider_;  // of the last opening whose connection string named one
  std::int32_t connection_timeout_ = 15;
  std::int32_t command_timeout_ = 30;
  std::unique_ptr<Connection> connection_;
  UnderWay under_way_;
  std::uint32_t openings_ = 0;
  bool in_transaction_ = false;
  bool failed_in_transaction_ = false;  // some call of the provider did
  std::vector<services::AdoError> errors_;
};

}  // namespace qvr::odbc
