#include "support/traced.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <mutex>

#include "base/trace.h"
#include "base/utf8.h"

namespace qvr::tests {
namespace {

// In fixed memory: out of memory is among the failures that are traced.
class Lines {
 public:
  void add(TextView line) {
    const std::lock_guard lock(mutex_);
    if (count_ < kept_.size()) {
      Line& kept = kept_[count_];
      kept.size = std::min(line.size(), kept.text.size());
      std::copy_n(line.begin(), kept.size, kept.text.begin());
    }
    ++count_;
  }

  std::vector<Text> take() {
    const std::lock_guard lock(mutex_);
    std::vector<Text> taken;
    for (std::size_t i = 0; i < std::min(count_, kept_.size()); ++i) {
      const TextView line(kept_[i].text.data(), kept_[i].size);
      taken.emplace_back(line.substr(0, line.rfind(u" (")));
    }
    if (count_ > kept_.size()) taken.push_back(u"and more");
    count_ = 0;
    return taken;
  }

 private:
  struct Line {
    std::size_t size;
    std::array<char16_t, 600> text;
  };
  std::array<Line, 200> kept_;
  std::size_t count_ = 0;
  std::mutex mutex_;
};

Lines lines;
bool any_expected = false;

class TracesAreAnnounced : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override {
    lines.take();
    any_expected = false;
    set_trace_sink([](TextView line) noexcept { lines.add(line); });
  }
  void OnTestEnd(const testing::TestInfo&) override {
    set_trace_sink(nullptr);
    const auto left = lines.take();
    if (any_expected) return;
    for (const Text& line : left) ADD_FAILURE() << "traced, but not announced: " << to_utf8(line);
  }
};

// Owned by the list of listeners.
[[maybe_unused]] const auto* const listening = [] {
  auto* const listener = new TracesAreAnnounced;
  testing::UnitTest::GetInstance()->listeners().Append(listener);
  return listener;
}();

}  // namespace

Traces traced() { return lines.take(); }

void expect_any_traces() { any_expected = true; }

}  // namespace qvr::tests
