#include "qvrscript/run/interruption.h"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <thread>

#include "qvrscript/output/console.h"

namespace qvr::script_tool {

// The second call does not wait for the first one's ending, which may wait for a database.
void Interruption::request() {
  if (++requests_ > 1) {
    leave_at_once(exit_code::kInterrupted,
                  "qvrscript: interrupted again: the connection is left as it is, and the database takes back what was "
                  "not committed");
  }
  // Again and again until it has ended: a command that is just about to begin cannot be cancelled yet.
  constexpr std::chrono::milliseconds kPause{50};
  for (bool first = true;; first = false) {
    {
      const std::lock_guard lock(mutex_);
      if (!end_ && first) leave_at_once(exit_code::kInterrupted, "qvrscript: interrupted");
      if (!end_) return;
      end_();
    }
    std::this_thread::sleep_for(kPause);
  }
}

Interruption::Ending::Ending(Interruption& interruption, std::function<void()> end) : interruption_(interruption) {
  const std::lock_guard lock(interruption_.mutex_);
  interruption_.requests_ = 0;
  interruption_.end_ = std::move(end);
}

Interruption::Ending::~Ending() {
  const std::lock_guard lock(interruption_.mutex_);
  interruption_.requests_ = 0;
  interruption_.end_ = {};
}

void Interruption::Ending::replace(std::function<void()> end) {
  const std::lock_guard lock(interruption_.mutex_);
  interruption_.end_ = std::move(end);
}

Interruption& interruption() {
  static Interruption instance;
  return instance;
}

void leave_at_once(int exit_code, const char* line) {
  std::cerr << line << std::endl;
  std::_Exit(exit_code);
}

}  // namespace qvr::script_tool
