// The part of ADO that the library uses. Every operation throws RuntimeFailure with the provider's number, description
// and source when ADO refuses it.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "frame/text.h"

namespace qvr::services {

// One entry of a connection's Errors collection.
struct AdoError {
  std::int32_t number = 0;
  Text description;
  Text source;
  Text sql_state;
  std::int32_t native_error = 0;
};

class AdoConnection {
 public:
  virtual ~AdoConnection() = default;
  virtual void set_connection_string(TextView text) = 0;
  virtual void open() = 0;  // without user and password of its own
  virtual void begin_trans() = 0;
  virtual void commit_trans() = 0;
  virtual void rollback_trans() = 0;
  virtual void close() = 0;
  virtual std::vector<AdoError> errors() = 0;  // the provider's errors of the last operation, in order
};

enum class CommandType : std::int32_t { Text = 1 };

class AdoCommand {
 public:
  virtual ~AdoCommand() = default;
  virtual void set_active_connection(AdoConnection& connection) = 0;
  virtual void set_command_type(CommandType type) = 0;
  virtual void set_command_text(TextView text) = 0;
  virtual void set_command_timeout(std::int32_t seconds) = 0;  // 0: no limit
  virtual void execute() = 0;                                  // without parameters, options -1
};

class Ado {
 public:
  virtual ~Ado() = default;
  virtual std::unique_ptr<AdoConnection> new_connection() = 0;
  virtual std::unique_ptr<AdoCommand> new_command() = 0;
};

}  // namespace qvr::services
