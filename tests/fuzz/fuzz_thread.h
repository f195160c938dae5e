// The one thread of a fuzz target: a user's language and locale that each input chooses, and boxes that are counted.
#pragma once

#include <vector>

#include "session/thread_state.h"
#include "support/fake_files.h"
#include "support/fake_locale.h"

namespace qvr::tests {

class FuzzThread {
 public:
  FuzzThread();
  FuzzThread(const FuzzThread&) = delete;
  FuzzThread& operator=(const FuzzThread&) = delete;

  // The language of this letter, S, E or F, with the numbers and dates of its home, and no boxes yet.
  void speak(std::size_t language);
  std::vector<Text> take_boxes() { return std::exchange(boxes_.shown, {}); }

  FakeLocale locale;
  FakeFiles files;

  static constexpr std::string_view kLanguages = "SEF";

 private:
  struct Boxes final : MessageBoxes {
    BoxAnswer show(TextView text, BoxButtons buttons) override;
    std::vector<Text> shown;
  };
  // No settings, a Spanish user, a stopped clock.
  struct FixedSystem final : System {
    Text setting(TextView, TextView, TextView, TextView fallback) override { return Text(fallback); }
    std::uint16_t user_language() override { return 0x0C0A; }
    Date now() override { return {40548.5}; }  // noon of 5 January 2011
    void process_events() override {}
    Text module_path() override { return {}; }
  };

  Boxes boxes_;
  FixedSystem system_;
  Platform platform_;
};

// Made by the first input.
FuzzThread& fuzz_thread();

}  // namespace qvr::tests
