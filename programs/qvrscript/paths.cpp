#include "qvrscript/paths.h"

#include <algorithm>

#include "base/failure.h"
#include "base/wildcards.h"
#include "session/thread_state.h"

namespace qvr::script_tool {

TextView without_last_separator(TextView path) {
  const bool has_one = path.size() > 1 && (path.ends_with(u'/') || path.ends_with(u'\\'));
  return has_one && !path.ends_with(u":\\") ? path.substr(0, path.size() - 1) : path;
}

std::filesystem::path system_path(TextView path) {
  Text generic(path);
  std::ranges::replace(generic, u'\\', u'/');
  return generic;
}

TextView file_name(TextView path) { return path.substr(path.find_last_of(u"/\\") + 1); }

std::optional<std::vector<Text>> names_in(TextView folder) {
  using Names = std::optional<std::vector<Text>>;
  return or_default({}, Names(), [&] {
    Names names = thread_state().platform().files.names(folder);
    std::ranges::sort(*names, less_no_case);
    return names;
  });
}

}  // namespace qvr::script_tool
