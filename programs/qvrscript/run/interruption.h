// What Ctrl+C, SIGINT and SIGTERM ask for. The system's part hears them on a thread of its own.
#pragma once

#include <atomic>
#include <functional>
#include <mutex>

namespace qvr::script_tool {

class Interruption {
 public:
  // By a thread of its own: while an `Ending` lives, the first call asks it to end and returns when it is gone. A
  // second call, and one without an ending, ends the process with 130.
  void request();
  bool requested() const { return requests_ > 0; }

  // What is ended by a request instead of the process. One at a time.
  class Ending {
   public:
    // `end` is called again until this is gone, by another thread.
    Ending(Interruption& interruption, std::function<void()> end);
    ~Ending();  // the next request is a first one again
    Ending(const Ending&) = delete;
    Ending& operator=(const Ending&) = delete;

    // Another way to end from now on, such as before and behind the opening of a connection.
    void replace(std::function<void()> end);

   private:
    Interruption& interruption_;
  };

 private:
  std::mutex mutex_;
  std::function<void()> end_;
  std::atomic<int> requests_ = 0;
};

// This process's.
Interruption& interruption();

// Ends the process now, with a line on the error output; other threads may be anywhere.
[[noreturn]] void leave_at_once(int exit_code, const char* line);

}  // namespace qvr::script_tool
