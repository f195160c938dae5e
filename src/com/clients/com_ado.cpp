#include "com/clients/com_ado.h"

#include <algorithm>

#include "base/failure.h"
#include "session/value_convert.h"

namespace qvr::com {
namespace {

constexpr std::int32_t kOptionsUnspecified = -1;

services::AdoError error_from(const LateObject& error) {
  const auto number = [&error](const wchar_t* name) {
    const Value value = error.get(name);
    const auto* held = value.as<std::int32_t>();
    return held != nullptr ? *held : 0;
  };
  return {number(L"Number"), to_text(error.get(L"Description")), to_text(error.get(L"Source")),
          to_text(error.get(L"SQLState")), number(L"NativeError")};
}

class ComConnection final : public services::AdoConnection {
 public:
  explicit ComConnection(LateObject object) : object_(std::move(object)) {}

  void set_connection_string(TextView text) override { object_.put(L"ConnectionString", text); }
  void open() override { object_.call(L"Open", TextView(), TextView(), TextView(), kOptionsUnspecified); }
  void begin_trans() override { object_.call(L"BeginTrans"); }
  void commit_trans() override { object_.call(L"CommitTrans"); }
  void rollback_trans() override { object_.call(L"RollbackTrans"); }
  void close() override { object_.call(L"Close"); }

  std::vector<services::AdoError> errors() override {
    std::vector<services::AdoError> found;
    const LateObject collection = object_.get_object(L"Errors");
    // A provider with a wrong count of errors must not block the report.
    constexpr std::int32_t kMost = 1000;
    const std::int32_t count = std::min(to_long(collection.get(L"Count")), kMost);
    for (std::int32_t i = 0; i < count; ++i) found.push_back(error_from(collection.get_object(L"Item", i)));
    return found;
  }

  const LateObject& object() const { return object_; }

 private:
  LateObject object_;
};

class ComParameter final : public services::AdoParameter {
 public:
  explicit ComParameter(LateObject object) : object_(std::move(object)) {}

  void set_type(services::DataType type) override { object_.put(L"Type", static_cast<std::int32_t>(type)); }
  void set_size(std::int32_t characters) override { object_.put(L"Size", characters); }
  void set_precision(std::uint8_t digits) override { object_.put(L"Precision", digits); }
  void set_numeric_scale(std::uint8_t decimals) override { object_.put(L"NumericScale", decimals); }
  void set_name(TextView name) override { object_.put(L"Name", name); }
  void set_direction(std::int32_t direction) override { object_.put(L"Direction", direction); }
  void set_value(const Value& value) override { object_.put(L"Value", value); }

  const LateObject& object() const { return object_; }

 private:
  LateObject object_;
};

class ComCommand final : public services::AdoCommand {
 public:
  explicit ComCommand(LateObject object) : object_(std::move(object)) {}

  void set_active_connection(services::AdoConnection& connection) override {
    object_.put(L"ActiveConnection", dynamic_cast<ComConnection&>(connection).object());
  }
  void set_command_type(services::CommandType type) override {
    object_.put(L"CommandType", static_cast<std::int32_t>(type));
  }
  void set_command_text(TextView text) override { object_.put(L"CommandText", text); }
  void set_command_timeout(std::int32_t seconds) override { object_.put(L"CommandTimeout", seconds); }
  void execute() override { object_.call(L"Execute", Missing{}, Missing{}, kOptionsUnspecified); }

  void refresh_parameters() override { parameters().call(L"Refresh"); }
  Value parameter_value(std::int32_t index) override { return parameter(index).get(L"Value"); }
  void set_parameter_value(std::int32_t index, const Value& value) override { parameter(index).put(L"Value", value); }
  void append_parameter(services::AdoParameter& added) override {
    parameters().call(L"Append", dynamic_cast<ComParameter&>(added).object());
  }

 private:
  LateObject parameters() const { return object_.get_object(L"Parameters"); }
  LateObject parameter(std::int32_t index) const { return parameters().get_object(L"Item", index); }

  LateObject object_;
};

}  // namespace

std::unique_ptr<services::AdoConnection> ComAdo::new_connection() {
  return std::make_unique<ComConnection>(LateObject(connections_.create(), ids_));
}

std::unique_ptr<services::AdoCommand> ComAdo::new_command() {
  return std::make_unique<ComCommand>(LateObject(commands_.create(), ids_));
}

std::unique_ptr<services::AdoParameter> ComAdo::new_parameter() {
  return std::make_unique<ComParameter>(LateObject(parameters_.create(), ids_));
}

std::unique_ptr<services::AdoCommand> wrap_command(IDispatch* command) {
  if (command == nullptr) return nullptr;
  return std::make_unique<ComCommand>(LateObject(HostPtr<IDispatch>(command)));
}

std::unique_ptr<services::AdoConnection> wrap_connection(IDispatch* connection) {
  if (connection == nullptr) return nullptr;
  return std::make_unique<ComConnection>(LateObject(HostPtr<IDispatch>(connection)));
}

}  // namespace qvr::com
