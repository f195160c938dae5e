#include "qvrscript/check/passed_over.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <string>

#include "base/utf8.h"
#include "base/wildcards.h"
#include "platform/posix/names.h"

namespace qvr::script_tool {
namespace {

Text shown(std::string_view name) {
  Text text;
  for (const char each : name) {
    const auto byte = static_cast<unsigned char>(each);
    if (byte < 0x80) {
      text.push_back(byte);
    } else {
      text += u"\\x" + hexadecimal(byte, 2, u"0123456789abcdef");
    }
  }
  return text;
}

bool is_plain_file(const std::string& path) {
  struct stat entry {};
  return ::stat(path.c_str(), &entry) == 0 && S_ISREG(entry.st_mode);
}

}  // namespace

std::vector<Text> names_passed_over(TextView folder) {
  std::vector<Text> names;
  const std::string path = posix::native_path(folder);
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(path.c_str()), &::closedir);
  if (!listing) return names;
  while (const dirent* entry = ::readdir(listing.get())) {
    if (from_utf8(entry->d_name) || !is_plain_file(path + "/" + entry->d_name)) continue;
    Text name = shown(entry->d_name);
    if (matches_wildcards(name, u"*.cfc")) names.push_back(std::move(name));
  }
  std::ranges::sort(names, less_no_case);
  return names;
}

}  // namespace qvr::script_tool
