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
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.message == WM_QUIT) {
        // Posted again for the host's own message loop; otherwise the application would not quit.
        PostQuitMessage(static_cast<int>(message.wParam));
        return;
      }
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
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
