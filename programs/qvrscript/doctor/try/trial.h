// A trial of the library: what its steps share.
#pragma once

#include <chrono>
#include <optional>

#include "base/engine.h"
#include "base/failure.h"
#include "qvrscript/doctor/doctor.h"
#include "qvrscript/doctor/try/tried_machine.h"

namespace qvr::script_tool {

// A connection that the user gave.
struct GivenDatabase {
  Text connection_string;
  Engine engine = Engine::None;
};

struct Trial {
  TriedMachine& machine;
  const std::optional<GivenDatabase> given;
  const std::int32_t connect_timeout;  // in seconds
  const Text folder;                   // for files, removed at the end
  const Text mark;                     // part of every name, so that no other trial has it

  bool without_library = false;
  // Of the database step; empty where there is no database.
  Text connection_string{};
  Engine engine = Engine::None;
  Text table{};
  // What takes away what was made, in reverse order.
  std::vector<std::function<void()>> undoing{};
};

// A step's line: Ok, or a Note where it could not be tried.
struct StepAnswer {
  Level level = Level::Ok;
  Text message, advice{};
};

// What was expected and what came.
class StepFailure : public std::exception {
 public:
  explicit StepFailure(std::initializer_list<TextView> message) : message_(join(message)) {}
  const Text& message() const { return message_; }
  const char* what() const noexcept override { return "step"; }

 private:
  Text message_;
};

void expect_text(TextView what, TextView expected, TextView came);
void expect_value(TextView what, const Value& expected, const Value& came);
// A value for output: True, 12, "text", Empty ...
Text shown_value(const Value& value);

Text failure_text(const FailureDetail& failure);

// Members of an object.
class Tried {
 public:
  Tried(TriedMachine& machine, Value object) : machine_(&machine), object_(std::move(object)) {}
  static Tried of_library(TriedMachine& machine, TextView class_name) { return {machine, machine.created(class_name)}; }
  static Tried of_ado(TriedMachine& machine, TextView program_id) {
    return {machine, machine.created_elsewhere(program_id)};
  }

  Value call(TextView member, std::vector<Value> arguments = {}) const {
    return machine_->use(object_, Access::Call, member, std::move(arguments));
  }
  Value get(TextView member, std::vector<Value> arguments = {}) const {
    return machine_->use(object_, Access::Get, member, std::move(arguments));
  }
  void put(TextView member, Value value) const { machine_->use(object_, Access::Put, member, {std::move(value)}); }
  Tried object(TextView member, std::vector<Value> arguments = {}) const {
    return {*machine_, get(member, std::move(arguments))};
  }
  const Value& value() const { return object_; }

 private:
  TriedMachine* machine_;
  Value object_;
};

StepAnswer try_classes(Trial& trial);
StepAnswer try_connection_file(Trial& trial);
StepAnswer try_values(Trial& trial);
StepAnswer try_queries(Trial& trial);
StepAnswer try_database(Trial& trial);
StepAnswer try_failing_script(Trial& trial);
StepAnswer try_procedure(Trial& trial);
StepAnswer try_events(Trial& trial);

// The trial's own connection.
void execute(const Trial& trial, TextView statement);
std::int32_t rows_of_table(const Trial& trial);
StepAnswer without_database();

struct TriedStep {
  Diagnosis diagnosis;
  std::chrono::milliseconds time;
};

struct TrialResult {
  std::vector<TriedStep> steps;
  bool interrupted = false;
};

// All steps in order; what they made is taken away again, also after a failure and an interruption, which leaves the
// other steps out. Throws UsageFailure where there is no automation.
TrialResult try_library(const std::optional<GivenDatabase>& given, std::int32_t connect_timeout);

}  // namespace qvr::script_tool
