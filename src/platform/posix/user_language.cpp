#include <cstdlib>
#include <string_view>

#include "platform/posix/parts.h"

namespace qvr::posix {
namespace {

struct LocaleIdentifier {
  std::string_view name;
  std::uint16_t identifier;
};

// The whole name first, then the language alone.
constexpr LocaleIdentifier kIdentifiers[] = {
    {"es_ES", 0x0C0A}, {"es_MX", 0x080A}, {"es_AR", 0x2C0A}, {"es", 0x0C0A}, {"en_US", 0x0409}, {"en_GB", 0x0809},
    {"en", 0x0409},    {"fr_FR", 0x040C}, {"fr_CH", 0x100C}, {"fr", 0x040C}, {"de_CH", 0x0807}, {"de", 0x0407},
    {"it", 0x0410},    {"ca", 0x0403},    {"gl", 0x0456},    {"eu", 0x042D}, {"pt", 0x0816},
};

class EnvironmentLanguage final : public UserLanguage {
 public:
  std::uint16_t default_identifier() override {
    const std::string name = locale_name();
    for (const LocaleIdentifier& row : kIdentifiers) {
      if (name == row.name || std::string_view(name).substr(0, name.find('_')) == row.name) return row.identifier;
    }
    return 0x0409;
  }
};

}  // namespace

std::string locale_name() {
  for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value == nullptr || *value == '\0') continue;
    const std::string_view name = value;
    return std::string(name.substr(0, name.find_first_of(".@")));
  }
  return "C";
}

UserLanguage& user_language() {
  static EnvironmentLanguage instance;
  return instance;
}

}  // namespace qvr::posix
