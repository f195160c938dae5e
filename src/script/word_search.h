// Finding one word again and again in a large text, without regard to case.
#pragma once

#include <array>
#include <cstddef>

#include "base/text.h"

namespace qvr {

// Finds what `find_no_case` finds. It looks at about one unit of the text for each length of the word, where that
// looks at every one; making it costs some hundred steps.
class WordSearch {
 public:
  explicit WordSearch(TextView word);  // which stays the caller's

  // Where the word first stands at or after `from`; npos for nowhere, and always for an empty word.
  std::size_t find(TextView text, std::size_t from = 0) const;

 private:
  static constexpr std::size_t kPlain = 0x80;

  std::size_t way(char16_t last) const;

  TextView word_;
  // How far a window of the word's length can move on, by its last unit: up to where that unit could stand in the word,
  // 0 for where it is the word's last. All units that fold to none of the first 128 share the last place.
  std::array<std::size_t, kPlain + 1> ways_;
  std::size_t after_miss_;  // for a window that ends in the word's last unit without being the word
};

}  // namespace qvr
