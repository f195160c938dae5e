#include <unistd.h>

#include <array>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>

#include "base/date_text.h"
#include "base/failure.h"
#include "base/utf8.h"
#include "platform/parts.h"
#include "platform/posix/names.h"

namespace qvr::posix {
namespace {

std::string configuration_folder() {
  if (const char* folder = std::getenv("XDG_CONFIG_HOME"); folder != nullptr && *folder != '\0') return folder;
  const char* home = std::getenv("HOME");
  return std::string(home != nullptr ? home : "") + "/.config";
}

struct LocaleIdentifier {
  std::string_view name;
  std::uint16_t identifier;
};

// First the whole locale name, then the language alone.
constexpr LocaleIdentifier kIdentifiers[] = {
    {"es_ES", 0x0C0A}, {"es_MX", 0x080A}, {"es_AR", 0x2C0A}, {"es", 0x0C0A}, {"en_US", 0x0409}, {"en_GB", 0x0809},
    {"en", 0x0409},    {"fr_FR", 0x040C}, {"fr_CH", 0x100C}, {"fr", 0x040C}, {"de_CH", 0x0807}, {"de", 0x0407},
    {"it", 0x0410},    {"ca", 0x0403},    {"gl", 0x0456},    {"eu", 0x042D}, {"pt", 0x0816},
};

class PosixSystem final : public System {
 public:
  // One file per value: application / section / key below the user's configuration folder.
  Text setting(TextView application, TextView section, TextView key, TextView fallback) override {
    const std::string relative = to_utf8(join({application, u"/", section, u"/", key}));
    std::ifstream file(configuration_folder() + "/" + relative, std::ios::binary);
    if (!file) return Text(fallback);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    bytes.erase(bytes.find_last_not_of("\r\n") + 1);
    return from_utf8(bytes).value_or(Text(fallback));
  }

  std::uint16_t user_language() override {
    const std::string name = locale_name();
    for (const LocaleIdentifier& row : kIdentifiers) {
      if (name == row.name || std::string_view(name).substr(0, name.find('_')) == row.name) return row.identifier;
    }
    return 0x0409;
  }

  Date now() override {
    const std::time_t moment = std::time(nullptr);
    std::tm local{};
    if (::localtime_r(&moment, &local) == nullptr) throw RuntimeFailure(failure_number::kOverflow);
    const int second = local.tm_sec < 60 ? local.tm_sec : 59;  // no leap seconds in Date
    return date_from({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, second})
        .value();
  }

  void process_events() override {}  // no message loop here

  Text module_path() override {
    std::array<char, 4096> buffer;
    const ssize_t size = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (size <= 0) throw RuntimeFailure(failure_number::kFile);
    return from_utf8({buffer.data(), static_cast<std::size_t>(size)}).value_or(Text());
  }
};

}  // namespace
}  // namespace qvr::posix

qvr::System& qvr::platform_parts::system() {
  static posix::PosixSystem instance;
  return instance;
}
