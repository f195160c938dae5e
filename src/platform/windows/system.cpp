#include <algorithm>
#include <vector>

#include "base/date_text.h"
#include "base/failure.h"
#include "platform/parts.h"
#include "platform/windows/floating_point.h"
#include "platform/windows/wide_text.h"

namespace qvr::windows {
namespace {

// The key of GetSetting and SaveSetting of Visual Basic.
constexpr TextView kSettings = u"Software\\VB and VBA Program Settings\\";

HMODULE module_of_this_code() {
  HMODULE module = nullptr;
  constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(&module_of_this_code), &module);
  return module;
}

// Handles the messages of this thread that are pending when it is made. What comes later is left to the next call or to
// the host's own loop: a window that posts to itself, a timer that is slower than its interval and a window that never
// validates always have another one.
class PendingMessages {
 public:
  void handle_all() {
    if (handle(0)) return;
    // A posted message of later hides the timers and paintings behind it.
    handle(WM_TIMER);
    handle(WM_PAINT);
  }

 private:
  static constexpr DWORD kLongest = 1000;  // milliseconds; other threads may post faster than the host handles
  static constexpr int kMost = 1000;  // a tick of the clock has room for many messages that a window posts to itself

  // What the system generates anew as long as it is due: a timer or a window to be painted.
  struct Due {
    HWND window;
    UINT message;
    WPARAM timer;
    bool operator==(const Due&) const = default;
  };

  // Of all kinds (0) or of one; true when none is left, or the application ends.
  bool handle(UINT kind) {
    MSG message;
    while (PeekMessageW(&message, nullptr, kind, kind, PM_NOREMOVE)) {
      if (!was_pending(message)) return false;
      if (!PeekMessageW(&message, nullptr, kind, kind, PM_REMOVE)) continue;
      if (message.message == WM_QUIT) {
        // Posted again for the host's own message loop; otherwise the application would not quit.
        PostQuitMessage(static_cast<int>(message.wParam));
        return true;
      }
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    return true;
  }

  bool was_pending(const MSG& message) {
    if (GetTickCount() - start_ > kLongest || ++handled_ > kMost) return false;
    if (message.message != WM_TIMER && message.message != WM_PAINT) {
      return static_cast<LONG>(message.time - start_) <= 0;
    }
    const Due due{message.hwnd, message.message, message.message == WM_TIMER ? message.wParam : 0};
    if (std::ranges::find(handled_due_, due) != handled_due_.end()) return false;
    handled_due_.push_back(due);
    return true;
  }

  const DWORD start_ = GetTickCount();
  int handled_ = 0;
  std::vector<Due> handled_due_;
};

class WindowsSystem final : public System {
 public:
  Text setting(TextView application, TextView section, TextView key, TextView fallback) override {
    const std::wstring path = wide(join({kSettings, application, u"\\", section}));
    const std::wstring name = wide(key);
    std::vector<wchar_t> buffer(64);
    for (;;) {
      auto bytes = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
      const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr,
                                          buffer.data(), &bytes);
      if (status == ERROR_SUCCESS) return text_from(buffer.data());
      if (status != ERROR_MORE_DATA) return Text(fallback);
      buffer.resize(bytes / sizeof(wchar_t) + 1);
    }
  }

  std::uint16_t user_language() override { return GetUserDefaultLangID(); }

  Date now() override {
    SYSTEMTIME local;
    GetLocalTime(&local);
    return date_from({local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond}).value();
  }

  void process_events() override {
    const HostFloatingPoint host;
    PendingMessages().handle_all();
  }

  Text module_path() override {
    std::wstring buffer(MAX_PATH, L'\0');
    for (;;) {
      const DWORD size = GetModuleFileNameW(module_of_this_code(), buffer.data(), static_cast<DWORD>(buffer.size()));
      if (size == 0) throw RuntimeFailure(failure_number::kFile);
      if (size < buffer.size()) return text_from({buffer.data(), size});
      buffer.resize(buffer.size() * 2);
    }
  }
};

}  // namespace
}  // namespace qvr::windows

qvr::System& qvr::platform_parts::system() {
  static windows::WindowsSystem instance;
  return instance;
}
