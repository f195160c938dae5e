// The command line.
#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <span>
#include <vector>

#include "base/engine.h"
#include "base/text.h"

namespace qvr::script_tool {

enum class Action { Help, Version, Check, List, Run, Doctor };

struct Arguments {
  Action action = Action::Help;
  std::optional<Action> topic;  // of help; nothing: all of it
  std::vector<Text> operands;
  std::optional<Engine> engine;
  std::optional<std::int32_t> from;
  Text connection;
  bool use_transaction = true;
  bool go_on = false;
  bool json = false;
  bool verbose = false;
};

// An invalid command line.
class UsageFailure : public std::exception {
 public:
  explicit UsageFailure(Text message) : message_(std::move(message)) {}
  const Text& message() const { return message_; }
  const char* what() const noexcept override { return "usage"; }

 private:
  Text message_;
};

// Parses the arguments; throws UsageFailure.
Arguments parse_arguments(std::span<const Text> words);

// The command of this name; nothing for none.
std::optional<Action> action_named(TextView word);

}  // namespace qvr::script_tool
