#include "qvrscript/run/log_file.h"

#include <ctime>
#include <filesystem>
#include <iomanip>

#include "base/failure.h"
#include "qvrscript/paths.h"
#include "qvrscript/tool_failure.h"
#include "session/thread_state.h"

namespace qvr::script_tool {

LogFile::LogFile(TextView path, Console& console) : console_(console) {
  // The platform refuses devices and whatever else is no file on a disk.
  const bool made = or_default({}, false, [&] { return thread_state().platform().files.create(path)->close(), true; });
  if (made) file_.open(system_path(path), std::ios::binary | std::ios::app);
  if (!made || !file_) throw ToolFailure({path, u" cannot be written"});
  console_.listener = [this](std::string_view shown) {
    const std::time_t now = std::time(nullptr);
    for (std::size_t at = 0; at <= shown.size();) {  // a document has several lines
      const std::string_view line = shown.substr(at, shown.find('\n', at) - at);
      file_ << std::put_time(std::localtime(&now), "%Y-%m-%d %H:%M:%S ") << line << '\n' << std::flush;
      at += line.size() + 1;
    }
  };
}

LogFile::~LogFile() { console_.listener = {}; }

}  // namespace qvr::script_tool
