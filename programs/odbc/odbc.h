// ODBC connections, as thin as they can be: handles with owners, and failures as exceptions.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <utility>
#include <vector>

#include "base/text.h"
#include "services/ado.h"

namespace qvr::odbc {

// A refused call, with every diagnostic record. The records' number and source are left to whoever knows the caller.
class Failure : public std::exception {
 public:
  explicit Failure(std::vector<services::AdoError> records) : records_(std::move(records)) {}
  const std::vector<services::AdoError>& records() const { return records_; }
  const char* what() const noexcept override { return "ODBC call refused"; }

 private:
  std::vector<services::AdoError> records_;
};

class Handle {
 public:
  Handle(std::int16_t type, void* parent);
  ~Handle();
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  void* get() const { return handle_; }

  // Throws Failure unless the result of a call on this handle means success; "no data" counts as success.
  void check(int result) const;

 private:
  std::int16_t type_;
  void* handle_ = nullptr;
};

// What commands are executed by. Its time limit is that of its first command and never changes.
struct Statement {
  Statement(const Handle& connection, std::int32_t timeout);  // in seconds, 0: no limit

  Handle handle;
  const std::int32_t timeout;
};

class Connection {
 public:
  Connection();
  ~Connection();  // rolls back what is pending

  // `login_timeout` in seconds, 0: no limit.
  void open(TextView connection_string, std::int32_t login_timeout);
  void close();
  void set_autocommit(bool on);
  void end_transaction(bool commit);

  const Handle& handle() const { return connection_; }

  // A statement with this time limit: the one that was kept or, where there is none such, a new one.
  std::unique_ptr<Statement> statement(std::int32_t timeout);
  // Keeps it for the next command, without its results; making one costs the driver manager nearly as much as a short
  // command. Not for one that has parameters bound or whose command failed: what it carries on could meet the next.
  void keep(std::unique_ptr<Statement> used);

 private:
  Handle environment_;
  Handle connection_;
  std::unique_ptr<Statement> kept_;  // gone before its connection is: closing frees all that it has
  bool open_ = false;
};

}  // namespace qvr::odbc
