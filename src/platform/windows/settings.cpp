#include <vector>

#include "platform/windows/parts.h"

namespace qvr::windows {
namespace {

// Where the application-settings functions of Visual Basic hosts keep their values.
constexpr TextView kArea = u"Software\\VB and VBA Program Settings\\";

class RegistrySettings final : public Settings {
 public:
  Text read(TextView application, TextView section, TextView key, TextView fallback) override {
    const std::wstring path = wide(join({kArea, application, u"\\", section}));
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
};

}  // namespace

Settings& settings() {
  static RegistrySettings instance;
  return instance;
}

}  // namespace qvr::windows
