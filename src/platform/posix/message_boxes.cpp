#include <cstdio>

#include "base/utf8.h"
#include "platform/parts.h"

namespace qvr::posix {
namespace {

// No desktop: the text goes to standard error.
class LoggedBoxes final : public MessageBoxes {
 public:
  BoxAnswer show(TextView text, BoxButtons buttons) override {
    std::fprintf(stderr, "QVRlib21: %s\n", to_utf8(text).c_str());
    return buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Ok;
  }
};

}  // namespace
}  // namespace qvr::posix

qvr::MessageBoxes& qvr::platform_parts::message_boxes() {
  static posix::LoggedBoxes instance;
  return instance;
}
