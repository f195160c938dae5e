#include "support/traced.h"

#include <gtest/gtest.h>

#include "support/traced_source.h"

namespace qvr::tests {
namespace {

bool any_expected = false;

class TracesAreAnnounced : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override {
    traced();
    any_expected = false;
    listen_to_traces(true);
  }
  void OnTestEnd(const testing::TestInfo&) override {
    listen_to_traces(false);
    const Traces left = traced();
    if (any_expected) return;
    for (const Text& line : left) ADD_FAILURE() << "traced, but not announced: " << testing::PrintToString(line);
  }
};

// Owned by the list of listeners.
[[maybe_unused]] const auto* const listening = [] {
  auto* const listener = new TracesAreAnnounced;
  testing::UnitTest::GetInstance()->listeners().Append(listener);
  return listener;
}();

}  // namespace

void expect_any_traces() { any_expected = true; }

}  // namespace qvr::tests
