// What a test saw happen, one line per call, in order.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/text.h"
#include "base/utf8.h"

namespace qvr::tests {

using Lines = std::vector<std::string>;

class CallLog {
 public:
  void add(std::string line) { lines_.push_back(std::move(line)); }
  void add(std::string what, TextView text) { add(std::move(what) + ": " + to_utf8(text)); }
  // The lines so far, which are then forgotten.
  Lines take() { return std::exchange(lines_, {}); }

 private:
  Lines lines_;
};

}  // namespace qvr::tests
