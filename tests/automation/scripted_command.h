// A mock of ADODB.Command: with values that no database returns, and with changes of the caller's variables while the
// procedure runs.
#pragma once

#include <memory>

#include "automation/family_component.h"

namespace qvr::tests {

class ScriptedCommand {
 public:
  // The values that its parameters have after the call, the return value first.
  explicit ScriptedCommand(std::vector<Var> outputs);
  ~ScriptedCommand();
  ScriptedCommand(const ScriptedCommand&) = delete;
  ScriptedCommand& operator=(const ScriptedCommand&) = delete;

  std::function<void()> on_execute;
  // After the call: before the value of this parameter is read.
  std::function<void(int index)> on_read;

  // What the parameters were given, in order.
  const std::vector<std::string>& inputs() const { return inputs_; }

 private:
  LateAnswer answer(const std::wstring& member, const std::vector<Var>& arguments);
  Var read_or_write(const std::vector<Var>& arguments);

  std::vector<Var> outputs_;
  std::vector<std::string> inputs_;
  int index_ = 0;
  std::unique_ptr<FamilyComponent> component_;
};

}  // namespace qvr::tests
