#include "platform/platform.h"

#include "platform/parts.h"

namespace qvr {

const Platform& system_platform() {
  static const Platform platform{platform_parts::files(), platform_parts::locale(), platform_parts::cryptography(),
                                 platform_parts::message_boxes(), platform_parts::system()};
  return platform;
}

}  // namespace qvr
