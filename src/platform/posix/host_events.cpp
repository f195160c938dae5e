#include "platform/posix/parts.h"

namespace qvr::posix {
namespace {

// A native program has no message loop to give way to.
class NoHostEvents final : public HostEvents {
 public:
  void process_pending() override {}
};

}  // namespace

HostEvents& host_events() {
  static NoHostEvents instance;
  return instance;
}

}  // namespace qvr::posix
