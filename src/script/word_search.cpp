#include "script/word_search.h"

#include <algorithm>

namespace qvr {

WordSearch::WordSearch(TextView word) : word_(word), after_miss_(word.size()) {
  ways_.fill(word.size());
  const auto place = [](char16_t unit) { return std::min<std::size_t>(fold(unit), kPlain); };
  for (std::size_t i = 0; i + 1 < word.size(); ++i) {
    const std::size_t left = word.size() - 1 - i;
    ways_[place(word[i])] = left;
    if (place(word[i]) == place(word.back())) after_miss_ = left;
  }
  if (!word.empty()) ways_[place(word.back())] = 0;
  for (char16_t unit = 0; unit < kPlain; ++unit) ways_[unit] = ways_[place(unit)];  // most text need not be folded
}

std::size_t WordSearch::way(char16_t last) const {
  return ways_[last < kPlain ? last : std::min<std::size_t>(fold(last), kPlain)];
}

std::size_t WordSearch::find(TextView text, std::size_t from) const {
  const std::size_t length = word_.size();
  if (length == 0 || from > text.size()) return TextView::npos;
  for (std::size_t end = from + length; end <= text.size();) {
    const std::size_t step = way(text[end - 1]);
    if (step == 0 && equal_no_case(text.substr(end - length, length), word_)) return end - length;
    end += step == 0 ? after_miss_ : step;
  }
  return TextView::npos;
}

}  // namespace qvr
