// Commands separated by lines that hold only "GO".
#pragma once

#include <cstddef>
#include <optional>

#include "base/text.h"

namespace qvr {

// Where the first separator (CR LF "GO" CR LF, without regard to case) at or after `from` starts; npos for none.
std::size_t find_separator(TextView text, std::size_t from);

// The number of separators, overlapping ones included.
std::int32_t count_separators(TextView text);

// Iterates over the commands of a text without copying. The text behind the last separator is not a command.
class CommandSplitter {
 public:
  explicit CommandSplitter(TextView text) : text_(text) {}

  // The next command, a view into the text; nothing after the last. Blank lines behind a separator are skipped.
  std::optional<TextView> next();

 private:
  TextView text_;
  std::size_t start_ = 0;
};

}  // namespace qvr
