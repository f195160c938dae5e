#include "platform/posix/parts.h"

namespace qvr {

const Platform& system_platform() {
  static const Platform platform{posix::settings(),      posix::user_language(), posix::files(),
                                 posix::message_boxes(), posix::host_events(),   posix::locale(),
                                 posix::clock(),         posix::cryptography(),  posix::own_module()};
  return platform;
}

}  // namespace qvr
