#include "platform/windows/parts.h"

namespace qvr {

const Platform& system_platform() {
  static const Platform platform{windows::settings(),      windows::user_language(), windows::files(),
                                 windows::message_boxes(), windows::host_events(),   windows::locale(),
                                 windows::clock(),         windows::cryptography(),  windows::own_module()};
  return platform;
}

}  // namespace qvr
