// ODBC connections, as thin as they can be: handles with owners, and failures as exceptions.
#pragma once

#include <cstdint>
#include <exception>
#include <utility>
#include <vector>

#include "frame/text.h"
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

 private:
  Handle environment_;
  Handle connection_;
  bool open_ = false;
};

}  // namespace qvr::odbc
