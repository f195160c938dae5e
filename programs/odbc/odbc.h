// A thin wrapper of ODBC: owned handles, and errors as exceptions.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "base/text.h"
#include "services/ado.h"

namespace qvr::odbc {

// A failed call with its diagnostic records. The caller fills in their numbers and sources.
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

// A statement handle. Its query timeout is set once and never changes.
struct Statement {
  Statement(const Handle& connection, std::int32_t timeout);  // in seconds, 0: no limit

  Handle handle;
  const std::int32_t timeout;
};

// The statement that one thread executes, for others that want its end.
class UnderWay {
 public:
  // Told by the executing thread; a statement lives until `end` has returned.
  void begin(const Statement& statement);
  void end() noexcept;
  // By any thread: the driver is asked to end the statement, which then fails. Nothing happens where none is executed.
  void cancel() noexcept;

 private:
  std::mutex mutex_;
  const Statement* statement_ = nullptr;
};

class Connection {
 public:
  Connection();
  ~Connection();  // rolls back a pending transaction

  // `login_timeout` in seconds, 0: no limit.
  void open(TextView connection_string, std::int32_t login_timeout);
  void close();
  void set_autocommit(bool on);
  void end_transaction(bool commit);
  bool is_lost() const;  // so far as the driver knows, which may ask the server

  const Handle& handle() const { return connection_; }

  // A statement with this query timeout: the kept one, or a new one.
  std::unique_ptr<Statement> statement(std::int32_t timeout);
  // Keeps the statement for the next command, its results closed: allocating one costs nearly as much as a short
  // command. Not for statements with bound parameters or after a failure, whose state could affect the next command.
  void keep(std::unique_ptr<Statement> used);

 private:
  Handle environment_;
  Handle connection_;
  std::unique_ptr<Statement> kept_;  // destroyed before its connection, which would free it
  bool open_ = false;
};

}  // namespace qvr::odbc
