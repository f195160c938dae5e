#include "servers/faults/watchdog.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace qvr::tests {

Watchdog::Watchdog(std::string name, std::chrono::seconds limit)
    : case_(std::move(name)), thread_([this, limit] { watch(limit); }) {}

Watchdog::~Watchdog() {
  {
    const std::lock_guard lock(mutex_);
    over_ = true;
  }
  over_changed_.notify_one();
  thread_.join();
}

void Watchdog::watch(std::chrono::seconds limit) {
  std::unique_lock lock(mutex_);
  if (over_changed_.wait_for(lock, limit, [this] { return over_; })) return;
  std::fprintf(stderr, "hangs: %s\n", case_.c_str());
  std::fflush(stderr);
  std::_Exit(3);
}

}  // namespace qvr::tests
