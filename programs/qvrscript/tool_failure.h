// Something is wrong with what was looked at or run, so that the command cannot go on.
#pragma once

#include <exception>

#include "base/text.h"

namespace qvr::script_tool {

class ToolFailure : public std::exception {
 public:
  explicit ToolFailure(std::initializer_list<TextView> message) : message_(join(message)) {}
  const Text& message() const { return message_; }
  const char* what() const noexcept override { return "failure"; }

 private:
  Text message_;
};

}  // namespace qvr::script_tool
