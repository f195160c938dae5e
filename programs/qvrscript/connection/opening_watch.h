// Watches over the opening of a connection: a driver may ignore the time limit that it is given, and never return.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <thread>

#include "base/text.h"

namespace qvr::script_tool {

// What is told of a connection that is given up.
Text not_opened(std::int32_t seconds);

class OpeningWatch {
 public:
  // Unless this is destroyed before, `give_up` is called on another thread some time after so many seconds (0: never),
  // with which the driver had its chance to tell a better reason. It must not return.
  OpeningWatch(std::int32_t seconds, std::function<void()> give_up);
  ~OpeningWatch();
  OpeningWatch(const OpeningWatch&) = delete;
  OpeningWatch& operator=(const OpeningWatch&) = delete;

 private:
  std::mutex mutex_;
  std::condition_variable over_;
  bool opened_ = false;
  std::thread thread_;
};

}  // namespace qvr::script_tool
