// The environment of this thread while scripts are loaded and run by the library's own members.
#pragma once

#include <functional>
#include <memory>

#include "platform/platform.h"
#include "services/error_report.h"
#include "session/thread_state.h"

namespace qvr::script_tool {

// What takes the place of message boxes, of the error report and of ADO. Empty ones are not called.
struct RunHooks {
  std::function<void(const services::ErrorNotice& notice)> report;
  std::function<bool()> go_on;  // whether to go on behind a command that failed; empty: no
  std::function<std::unique_ptr<services::Ado>()> make_ado;
  std::function<void(TextView path, const std::optional<Text>& text)> read;  // a script was read, or could not be
};

// Puts them in place while it lives. One at a time in a process.
class RunThread {
 public:
  explicit RunThread(RunHooks hooks);
  ~RunThread();
  RunThread(const RunThread&) = delete;
  RunThread& operator=(const RunThread&) = delete;

 private:
  class Boxes;

  std::unique_ptr<Boxes> boxes_;
  Platform platform_;
  std::unique_ptr<ThreadState> former_;
};

}  // namespace qvr::script_tool
