#include "automation/scripted_command.h"

#include <gtest/gtest.h>

#include "automation/library.h"

namespace qvr::tests {
namespace {

constexpr const wchar_t* kProgramId = L"ADODB.Command";
const std::vector<std::wstring> kMembers{L"ActiveConnection", L"CommandText", L"CommandType", L"Execute",
                                         L"Parameters",       L"Refresh",     L"Item",        L"Value"};

}  // namespace

ScriptedCommand::ScriptedCommand(std::vector<Var> outputs)
    : outputs_(std::move(outputs)),
      component_(std::make_unique<FamilyComponent>(kProgramId, kMembers, [this](auto& member, auto& arguments) {
        return answer(member, arguments);
      })) {}

ScriptedCommand::~ScriptedCommand() {
  component_.reset();
  EXPECT_EQ(test_ado().register_it(), S_OK);
}

// One object is the command, its collection and each of its parameters.
LateAnswer ScriptedCommand::answer(const std::wstring& member, const std::vector<Var>& arguments) {
  LateAnswer answer;
  answer.result = S_OK;
  if (member == L"Execute" && on_execute) on_execute();
  if (member == L"Item") index_ = static_cast<int>(arguments.at(0).raw().lVal);
  if (member == L"Parameters" || member == L"Item") answer.value = Var(LateObject(kProgramId).get());
  if (member == L"Value") answer.value = read_or_write(arguments);
  return answer;
}

Var ScriptedCommand::read_or_write(const std::vector<Var>& arguments) {
  if (!arguments.empty()) {
    inputs_.push_back(describe(arguments[0].raw()));
    return {};
  }
  if (on_read) on_read(index_);
  return outputs_.at(static_cast<std::size_t>(index_));
}

}  // namespace qvr::tests
