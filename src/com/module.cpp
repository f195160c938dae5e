#include "com/module.h"

namespace qvr::com {

void keep_loaded() noexcept {
  HMODULE module = nullptr;
  constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN;
  GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(&keep_loaded), &module);
}

}  // namespace qvr::com
