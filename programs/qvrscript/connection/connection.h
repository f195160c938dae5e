// Where a command's connection comes from.
#pragma once

#include <functional>
#include <optional>

#include "base/secret_text.h"
#include "connection/qvrcfp.h"
#include "qvrscript/command_line/requests.h"
#include "qvrscript/output/console.h"
#include "qvrscript/surroundings.h"

namespace qvr::script_tool {

struct Connection {
  explicit Connection(Text&& connection_string, Text&& id = {})
      : string(std::move(connection_string)), identification(std::move(id)) {}
  Connection(Connection&&) = default;
  Connection& operator=(Connection&&) = delete;
  ~Connection() {
    if (parameters) wipe(*parameters);
  }

  SecretText string;
  SecretText identification;                       // of the connection file
  std::optional<ConnectionParameters> parameters;  // of the connection file, where it comes from one
};

// Nothing after a failure, which then stands on the error output: the command ends with exit_code::kFailed. Throws
// UsageFailure for what the command line, the environment or the input should have told and did not. The console's
// secrets have the string, its passwords, the file's and the identification from then on; a password in an argument
// gives a warning.
std::optional<Connection> connection_of(const ConnectionChoice& choice, const Surroundings& surroundings,
                                        Console& console);

// A connection of the program's own. Throws OpenFailure. Where the driver ignores its time limit, `give_up` is told by
// another thread, and the process ends with exit_code::kFailed.
std::unique_ptr<Database> opened_database(TextView connection_string, std::int32_t connect_timeout,
                                          const Surroundings& surroundings,
                                          const std::function<void(TextView why)>& give_up);

}  // namespace qvr::script_tool
