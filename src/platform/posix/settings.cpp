#include <cstdlib>
#include <fstream>
#include <iterator>

#include "base/utf8.h"
#include "platform/posix/parts.h"

namespace qvr::posix {
namespace {

std::string configuration_folder() {
  if (const char* folder = std::getenv("XDG_CONFIG_HOME"); folder != nullptr && *folder != '\0') return folder;
  const char* home = std::getenv("HOME");
  return std::string(home != nullptr ? home : "") + "/.config";
}

// One file per value: application / section / key below the user's configuration folder.
class FileSettings final : public Settings {
 public:
  Text read(TextView application, TextView section, TextView key, TextView fallback) override {
    const std::string relative = to_utf8(join({application, u"/", section, u"/", key}));
    std::ifstream file(configuration_folder() + "/" + relative, std::ios::binary);
    if (!file) return Text(fallback);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    bytes.erase(bytes.find_last_not_of("\r\n") + 1);
    return from_utf8(bytes).value_or(Text(fallback));
  }
};

}  // namespace

Settings& settings() {
  static FileSettings instance;
  return instance;
}

}  // namespace qvr::posix
