// ADO that logs every call and fails where it is told to. Names of operations: "new Connection",
// "Connection.ConnectionString", ".Open", ".BeginTrans", ".CommitTrans", ".RollbackTrans", ".Close", ".Errors",
// "new Command", "Command.ActiveConnection", ".CommandType", ".CommandText", ".CommandTimeout", ".Execute",
// "Parameters.Refresh", "Parameters.Item.Value" (written, as "1=Long 5"), "Parameters.Item.Value read",
// "Parameters.Append", "new Parameter", "Parameter.Type", ".Size", ".Precision", ".NumericScale", ".Name",
// ".Direction",
// ".Value".
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/failure.h"
#include "services/ado.h"
#include "support/call_log.h"

namespace qvr::tests {

class RecordingAdo final : public services::Ado {
 public:
  explicit RecordingAdo(CallLog& log) : log_(log) {}
  std::unique_ptr<services::AdoConnection> new_connection() override;
  std::unique_ptr<services::AdoCommand> new_command() override;
  std::unique_ptr<services::AdoParameter> new_parameter() override;

  // What a called procedure leaves in its parameters; 0 is its return value.
  std::map<std::int32_t, Value> procedure_outputs;

  // The operation's n-th call (counted from 1) fails with this; the connection then tells these errors.
  void fail(std::string operation, int occurrence, FailureDetail failure, std::vector<services::AdoError> errors = {});

  // The n-th call of all (counted from 1) fails as `thrower` does; with a connection that broke, every later one, too.
  enum class Broken { No, Yes };
  void fail_call(int nth, std::function<void()> thrower, Broken broken);
  int call_count() const { return call_count_; }
  std::vector<std::string> refused;  // the operations that failed so

  // The connection's errors, in the place of those that a failure left.
  std::function<std::vector<services::AdoError>()> told_errors;

  // For the recording objects.
  void call(const char* operation);
  void call(const char* operation, TextView argument);
  void released(const char* line);
  std::vector<services::AdoError> errors();
  CallLog& log() { return log_; }

 private:
  struct Planned {
    int occurrence;
    FailureDetail failure;
    std::vector<services::AdoError> errors;
  };

  void count(const char* operation);

  CallLog& log_;
  std::map<std::string, int> calls_;
  std::multimap<std::string, Planned> planned_;
  std::vector<services::AdoError> errors_;
  int call_count_ = 0, failing_call_ = 0;
  Broken broken_ = Broken::No;
  std::function<void()> thrower_;
};

}  // namespace qvr::tests
