#include "qvrscript/connection/opening_watch.h"

#include <chrono>

namespace qvr::script_tool {

Text not_opened(std::int32_t seconds) {
  return join({u"The connection was not opened within ", decimal(seconds), u" seconds (--connect-timeout)"});
}

OpeningWatch::OpeningWatch(std::int32_t seconds, std::function<void()> give_up) {
  if (seconds == 0) return;
  constexpr std::chrono::seconds kMore{2};
  thread_ = std::thread([this, limit = std::chrono::seconds(seconds) + kMore, give_up = std::move(give_up)] {
    std::unique_lock lock(mutex_);
    if (!over_.wait_for(lock, limit, [this] { return opened_; })) give_up();
  });
}

OpeningWatch::~OpeningWatch() {
  {
    const std::lock_guard lock(mutex_);
    opened_ = true;
  }
  over_.notify_all();
  if (thread_.joinable()) thread_.join();
}

}  // namespace qvr::script_tool
