// The part of ADO that the library uses. Every operation throws RuntimeFailure with the provider's number, description
// and source on failure.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "base/text.h"
#include "base/value.h"

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
  virtual void open() = 0;  // without the arguments UserID and Password
  virtual void begin_trans() = 0;
  virtual void commit_trans() = 0;
  virtual void rollback_trans() = 0;
  virtual void close() = 0;
  virtual std::vector<AdoError> errors() = 0;  // the provider's errors of the last operation, in order
};

enum class CommandType : std::int32_t { Text = 1, StoredProcedure = 4 };

// Values of ADO's DataTypeEnum.
enum class DataType : std::int32_t {
  Integer = 3,
  Single = 4,
  Double = 5,
  Boolean = 11,
  Numeric = 131,
  DbTimeStamp = 135,
  VarChar = 200,
  VarWChar = 202
};

class AdoParameter {
 public:
  virtual ~AdoParameter() = default;
  virtual void set_type(DataType type) = 0;
  virtual void set_size(std::int32_t characters) = 0;
  virtual void set_precision(std::uint8_t digits) = 0;
  virtual void set_numeric_scale(std::uint8_t decimals) = 0;
  virtual void set_name(TextView name) = 0;
  virtual void set_direction(std::int32_t direction) = 0;
  virtual void set_value(const Value& value) = 0;
};

class AdoCommand {
 public:
  virtual ~AdoCommand() = default;
  virtual void set_active_connection(AdoConnection& connection) = 0;
  virtual void set_command_type(CommandType type) = 0;
  virtual void set_command_text(TextView text) = 0;
  virtual void set_command_timeout(std::int32_t seconds) = 0;  // 0: no limit
  virtual void execute() = 0;  // no further arguments, Options = adOptionUnspecified (-1)

  virtual void refresh_parameters() = 0;  // asks the server; parameter 0 is the return value
  virtual Value parameter_value(std::int32_t index) = 0;
  virtual void set_parameter_value(std::int32_t index, const Value& value) = 0;
  virtual void append_parameter(AdoParameter& parameter) = 0;
};

// Made for one run or one call, and outlives the objects that it makes.
class Ado {
 public:
  virtual ~Ado() = default;
  virtual std::unique_ptr<AdoConnection> new_connection() = 0;
  virtual std::unique_ptr<AdoCommand> new_command() = 0;
  virtual std::unique_ptr<AdoParameter> new_parameter() = 0;
};

}  // namespace qvr::services
