#include "platform/windows/floating_point.h"
#include "platform/windows/parts.h"

namespace qvr::windows {
namespace {

class MessageLoop final : public HostEvents {
 public:
  void process_pending() override {
    const HostFloatingPoint host;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.message == WM_QUIT) {
        // The host's own loop has to see it; taken here, the application would never end.
        PostQuitMessage(static_cast<int>(message.wParam));
        return;
      }
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
};

}  // namespace

HostEvents& host_events() {
  static MessageLoop instance;
  return instance;
}

}  // namespace qvr::windows
