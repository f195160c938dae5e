// A finding of a check.
#pragma once

#include <string_view>
#include <vector>

#include "base/text.h"

namespace qvr::script_tool {

struct Finding {
  Text file;             // or folder
  std::size_t line = 0;  // 0: the whole of it
  std::string_view rule;
  Text message;
};

// Collects the findings in one file.
class Findings {
 public:
  Findings(TextView file, std::vector<Finding>& found) : file_(file), found_(found) {}
  void add(std::size_t line, std::string_view rule, std::initializer_list<TextView> message) {
    found_.push_back({Text(file_), line, rule, join(message)});
  }

 private:
  TextView file_;
  std::vector<Finding>& found_;
};

}  // namespace qvr::script_tool
