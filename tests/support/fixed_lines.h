// Lines kept in fixed memory, so that they can be taken down where memory is short or an exception is being handled.
#pragma once

#include <algorithm>
#include <array>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace qvr::tests {

// The first lines of each take, and whether there were more; long lines are cut.
template <class Unit>
class FixedLines {
 public:
  using View = std::basic_string_view<Unit>;

  void add(View line) {
    const std::lock_guard lock(mutex_);
    if (count_ < kept_.size()) {
      Line& kept = kept_[count_];
      kept.size = std::min(line.size(), kept.text.size());
      std::copy_n(line.begin(), kept.size, kept.text.begin());
    }
    ++count_;
  }

  // Those that `wanted` is true for; the others stay.
  template <class Wanted>
  std::vector<std::basic_string<Unit>> take(Wanted&& wanted) {
    const std::lock_guard lock(mutex_);
    std::vector<std::basic_string<Unit>> taken;
    std::size_t staying = 0;
    for (std::size_t i = 0; i < std::min(count_, kept_.size()); ++i) {
      const View line(kept_[i].text.data(), kept_[i].size);
      if (wanted(line)) {
        taken.emplace_back(line);
      } else {
        kept_[staying++] = kept_[i];
      }
    }
    constexpr std::string_view kMore = "and more";
    if (count_ > kept_.size()) taken.emplace_back(kMore.begin(), kMore.end());
    count_ = staying;
    return taken;
  }

 private:
  struct Line {
    std::size_t size;
    std::array<Unit, 1500> text;
  };
  std::array<Line, 200> kept_;
  std::size_t count_ = 0;
  std::mutex mutex_;
};

}  // namespace qvr::tests
