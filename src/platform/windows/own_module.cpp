#include "base/failure.h"
#include "platform/windows/parts.h"

namespace qvr::windows {
namespace {

HMODULE module_of_this_code() {
  HMODULE module = nullptr;
  constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(&module_of_this_code), &module);
  return module;
}

class LoadedModule final : public OwnModule {
 public:
  Text path() override {
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

OwnModule& own_module() {
  static LoadedModule instance;
  return instance;
}

}  // namespace qvr::windows
