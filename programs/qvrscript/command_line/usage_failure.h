// An invalid command line.
#pragma once

#include <exception>

#include "base/text.h"

namespace qvr::script_tool {

class UsageFailure : public std::exception {
 public:
  explicit UsageFailure(Text message) : message_(std::move(message)) {}
  explicit UsageFailure(std::initializer_list<TextView> message) : message_(join(message)) {}
  const Text& message() const { return message_; }
  const char* what() const noexcept override { return "usage"; }

 private:
  Text message_;
};

}  // namespace qvr::script_tool
