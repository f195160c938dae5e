#include "com/module.h"

namespace qvr::com {

void keep_loaded() noexcept {
  static const bool kept = [] {
    HMODULE module = nullptr;
    constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN;
    return GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(&keep_loaded), &module) != FALSE;
  }();
  static_cast<void>(kept);
}

}  // namespace qvr::com
