#include "platform/windows/message_boxes.h"

#include "platform/parts.h"
#include "platform/windows/floating_point.h"
#include "platform/windows/wide_text.h"

namespace qvr::windows {

bool has_visible_desktop() {
  USEROBJECTFLAGS flags{};
  DWORD needed = 0;
  const HWINSTA station = GetProcessWindowStation();
  if (station == nullptr) return false;
  if (!GetUserObjectInformationW(station, UOI_FLAGS, &flags, sizeof flags, &needed)) return true;
  return (flags.dwFlags & WSF_VISIBLE) != 0;
}

namespace {

class SystemBoxes final : public MessageBoxes {
 public:
  BoxAnswer show(TextView text, BoxButtons buttons) override {
    const bool question = buttons == BoxButtons::YesNo;
    if (!has_visible_desktop()) {
      OutputDebugStringW((std::wstring(kLibraryName) + L": " + wide(text) + L"\r\n").c_str());
      return question ? BoxAnswer::No : BoxAnswer::Ok;
    }
    const HWND owner = GetActiveWindow();
    // While another application is in the foreground the thread has no active window: MB_TASKMODAL disables all of its
    // windows.
    const UINT reach = owner == nullptr ? MB_TASKMODAL : 0;
    const UINT style = question ? MB_YESNO | MB_ICONQUESTION : MB_OK | MB_ICONEXCLAMATION;
    const HostFloatingPoint host;  // the box's message loop calls the host's window procedures
    const int answer = MessageBoxW(owner, wide(text).c_str(), kLibraryName, style | reach);
    if (!question) return BoxAnswer::Ok;
    return answer == IDYES ? BoxAnswer::Yes : BoxAnswer::No;
  }
};

}  // namespace
}  // namespace qvr::windows

qvr::MessageBoxes& qvr::platform_parts::message_boxes() {
  static windows::SystemBoxes instance;
  return instance;
}
