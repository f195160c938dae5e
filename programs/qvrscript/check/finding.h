// A finding of a check.
#pragma once

#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace qvr::script_tool {

class IgnoreComments;

struct Finding {
  std::size_t line = 0;  // 0: the whole file or folder
  std::string_view rule;
  Text message;
  std::optional<Text> reason;  // why it is silenced
};

// Collects the findings in one file: the first of each rule, and how many more there are. A file of two million lines
// can have a finding in each.
class Findings {
 public:
  static constexpr std::size_t kMostOfRule = 1000;

  struct Omitted {
    std::string_view rule;
    bool silenced;
    std::size_t count;
  };

  // What is added from now on is silenced by these, which live until the last is added.
  void silence_by(IgnoreComments& comments) { comments_ = &comments; }
  void add(std::size_t line, std::string_view rule, std::initializer_list<TextView> message);

  std::vector<Finding> listed() &&;  // by line
  std::vector<Omitted> omitted() const;

 private:
  IgnoreComments* comments_ = nullptr;
  std::vector<Finding> found_;
  std::map<std::pair<std::string_view, bool>, std::size_t> counts_;  // by rule and whether they are silenced
};

}  // namespace qvr::script_tool
