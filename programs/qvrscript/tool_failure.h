// Something is wrong with what was looked at or run, so that the command cannot go on.
#pragma once

#include <exception>

#include "base/text.h"

namespace qvr::script_tool {

class ToolFailure : public std::exception {
 public:
  explicit ToolFailure(std::initializer_list<TextView> message, bool told = false)
      : message_(join(message)), told_(told) {}
  const Text& message() const { return message_; }
  bool told() const { return told_; }  // on the error output already, in more words
  const char* what() const noexcept override { return "failure"; }

 private:
  Text message_;
  bool told_;
};

}  // namespace qvr::script_tool
