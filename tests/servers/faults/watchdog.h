// Ends the program where a case hangs.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace qvr::tests {

// Unless it is destroyed within the limit, the program ends with the case's name on the error output.
class Watchdog {
 public:
  Watchdog(std::string name, std::chrono::seconds limit);
  ~Watchdog();
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

 private:
  void watch(std::chrono::seconds limit);

  const std::string case_;
  std::mutex mutex_;
  std::condition_variable over_changed_;
  bool over_ = false;
  std::thread thread_;
};

}  // namespace qvr::tests
