#include "support/recording_ado.h"

#include "base/utf8.h"
#include "support/describe.h"
#include "support/faults_paused.h"

namespace qvr::tests {
namespace {

Text described(const Value& value) { return from_utf8(describe(value)).value(); }

class RecordingConnection final : public services::AdoConnection {
 public:
  explicit RecordingConnection(RecordingAdo& ado) : ado_(ado) {}
  ~RecordingConnection() override { ado_.released("Connection released"); }
  void set_connection_string(TextView text) override { ado_.call("Connection.ConnectionString", text); }
  void open() override { ado_.call("Connection.Open"); }
  void begin_trans() override { ado_.call("Connection.BeginTrans"); }
  void commit_trans() override { ado_.call("Connection.CommitTrans"); }
  void rollback_trans() override { ado_.call("Connection.RollbackTrans"); }
  void close() override { ado_.call("Connection.Close"); }
  std::vector<services::AdoError> errors() override { return ado_.errors(); }

 private:
  RecordingAdo& ado_;
};

class RecordingCommand final : public services::AdoCommand {
 public:
  explicit RecordingCommand(RecordingAdo& ado) : ado_(ado) {}
  ~RecordingCommand() override { ado_.released("Command released"); }
  void set_active_connection(services::AdoConnection&) override { ado_.call("Command.ActiveConnection"); }
  void set_command_type(services::CommandType type) override {
    ado_.call("Command.CommandType", decimal(static_cast<std::int32_t>(type)));
  }
  void set_command_text(TextView text) override {
    text_ = text;
    ado_.call("Command.CommandText", text);
  }
  void set_command_timeout(std::int32_t seconds) override { ado_.call("Command.CommandTimeout", decimal(seconds)); }
  void execute() override { ado_.call("Command.Execute", text_); }
  void refresh_parameters() override { ado_.call("Parameters.Refresh"); }
  Value parameter_value(std::int32_t index) override {
    ado_.call("Parameters.Item.Value read", decimal(index));
    const auto found = ado_.procedure_outputs.find(index);
    return found == ado_.procedure_outputs.end() ? Value() : found->second;
  }
  void set_parameter_value(std::int32_t index, const Value& value) override {
    ado_.call("Parameters.Item.Value", join({decimal(index), u"=", described(value)}));
  }
  void append_parameter(services::AdoParameter&) override { ado_.call("Parameters.Append"); }

 private:
  RecordingAdo& ado_;
  Text text_;
};

class RecordingParameter final : public services::AdoParameter {
 public:
  explicit RecordingParameter(RecordingAdo& ado) : ado_(ado) {}
  ~RecordingParameter() override { ado_.released("Parameter released"); }
  void set_type(services::DataType type) override {
    ado_.call("Parameter.Type", decimal(static_cast<std::int32_t>(type)));
  }
  void set_size(std::int32_t characters) override { ado_.call("Parameter.Size", decimal(characters)); }
  void set_precision(std::uint8_t digits) override { ado_.call("Parameter.Precision", decimal(digits)); }
  void set_numeric_scale(std::uint8_t decimals) override { ado_.call("Parameter.NumericScale", decimal(decimals)); }
  void set_name(TextView name) override { ado_.call("Parameter.Name", name); }
  void set_direction(std::int32_t direction) override { ado_.call("Parameter.Direction", decimal(direction)); }
  void set_value(const Value& value) override { ado_.call("Parameter.Value", described(value)); }

 private:
  RecordingAdo& ado_;
};

}  // namespace

std::unique_ptr<services::AdoConnection> RecordingAdo::new_connection() {
  call("new Connection");
  return std::make_unique<RecordingConnection>(*this);
}

std::unique_ptr<services::AdoCommand> RecordingAdo::new_command() {
  call("new Command");
  return std::make_unique<RecordingCommand>(*this);
}

std::unique_ptr<services::AdoParameter> RecordingAdo::new_parameter() {
  call("new Parameter");
  return std::make_unique<RecordingParameter>(*this);
}

void RecordingAdo::fail(std::string operation, int occurrence, FailureDetail failure,
                        std::vector<services::AdoError> errors) {
  planned_.emplace(std::move(operation), Planned{occurrence, std::move(failure), std::move(errors)});
}

void RecordingAdo::fail_call(int nth, std::function<void()> thrower, Broken broken) {
  failing_call_ = nth;
  broken_ = broken;
  thrower_ = std::move(thrower);
}

void RecordingAdo::call(const char* operation) {
  const FaultsPaused paused;
  log_.add(operation);
  count(operation);
}

void RecordingAdo::call(const char* operation, TextView argument) {
  const FaultsPaused paused;
  log_.add(operation, argument);
  count(operation);
}

void RecordingAdo::released(const char* line) {
  const FaultsPaused paused;
  log_.add(line);
}

std::vector<services::AdoError> RecordingAdo::errors() {
  count("Connection.Errors");
  return told_errors ? told_errors() : errors_;
}

void RecordingAdo::count(const char* operation) {
  const FaultsPaused paused;
  ++call_count_;
  const bool broken = broken_ == Broken::Yes && call_count_ > failing_call_;
  if (thrower_ && (call_count_ == failing_call_ || broken)) {
    refused.push_back(operation);
    thrower_();
  }
  const int occurrence = ++calls_[operation];
  const auto [first, last] = planned_.equal_range(operation);
  for (auto plan = first; plan != last; ++plan) {
    if (plan->second.occurrence != occurrence) continue;
    errors_ = plan->second.errors;
    throw RuntimeFailure(plan->second.failure);
  }
}

}  // namespace qvr::tests
