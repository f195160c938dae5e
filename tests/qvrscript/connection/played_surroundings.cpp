#include "connection/played_surroundings.h"

namespace qvr::tests {
namespace {

PlayedSurroundings* current = nullptr;

std::optional<Text> variable(TextView name) {
  const auto found = current->variables.find(Text(name));
  return found == current->variables.end() ? std::nullopt : std::optional(found->second);
}

std::optional<Text> answer(TextView prompt) {
  current->prompts.emplace_back(prompt);
  if (current->answers.empty()) return std::nullopt;
  Text first = current->answers.front();
  current->answers.erase(current->answers.begin());
  return first;
}

std::optional<Text> input_line() { return current->input; }

}  // namespace

PlayedSurroundings::PlayedSurroundings() { current = this; }
PlayedSurroundings::~PlayedSurroundings() { current = nullptr; }

script_tool::Surroundings PlayedSurroundings::surroundings() const {
  return {nullptr, open_database, variable, answer, input_line};
}

}  // namespace qvr::tests
